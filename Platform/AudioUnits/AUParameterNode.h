#pragma once

#include "Platform/AudioUnits/AUParameterEvent.h"
#include "Platform/Core/Snapshot.h"

#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace platform {

class AUParameter;

/// Hears of every set value first, on the thread that sets it.
using AUImplementorValueObserver = std::function<void(AUParameter& parameter, AUValue value)>;
using AUImplementorStringFromValueCallback =
    std::function<QString(AUParameter& parameter, std::optional<AUValue> value)>;
using AUImplementorValueFromStringCallback =
    std::function<AUValue(AUParameter& parameter, const QString& text)>;
using AUParameterObserver = std::function<void(AUParameterAddress address, AUValue value)>;
using AUParameterAutomationObserver = std::function<void(const AUParameterAutomationEvent& event)>;

/// A parameter or a group of them. It has callbacks and observers, which hold for everything in it too. They
/// run on the thread that sets a value, which may render audio: there they must not allocate, lock or block.
/// Whoever replaces or removes one waits until it no longer runs, unless this happens while the same thread
/// sets a value in the node. Add, replace and remove on the main thread.
class AUParameterNode : public std::enable_shared_from_this<AUParameterNode> {
public:
    virtual ~AUParameterNode() = default;
    AUParameterNode(const AUParameterNode&) = delete;
    AUParameterNode& operator=(const AUParameterNode&) = delete;

    /// Unique among its siblings; empty for a tree.
    const QString& identifier() const { return m_identifier; }

    /// For people.
    const QString& displayName() const { return m_displayName; }

    /// Of the callbacks of a parameter and of the groups that it is in, the nearest one of a kind is called.
    /// Null for none.
    void setImplementorValueObserver(AUImplementorValueObserver observer);
    void setImplementorStringFromValueCallback(AUImplementorStringFromValueCallback callback);
    void setImplementorValueFromStringCallback(AUImplementorValueFromStringCallback callback);

    /// Observers are called after the implementor's, in the order in which they were added, those of a
    /// parameter before those of its groups; never with what was set with their own token as originator.
    AUParameterObserverToken tokenByAddingParameterObserver(AUParameterObserver observer);
    AUParameterObserverToken tokenByAddingParameterAutomationObserver(AUParameterAutomationObserver observer);

    void removeParameterObserver(AUParameterObserverToken token);

protected:
    AUParameterNode(QString identifier, QString displayName);

    /// A node is in the group that it was put into last.
    void setParent(const std::weak_ptr<const AUParameterNode>& parent);

    /// Tells the implementor, then the observers. Without a host time these get the current one, which is
    /// read only if there is an observer.
    void tell(AUParameter& parameter, AUParameterAutomationEvent event, std::optional<std::uint64_t> hostTime,
              AUParameterObserverToken originator) const;
    std::optional<QString> implementorString(AUParameter& parameter, std::optional<AUValue> value) const;
    std::optional<AUValue> implementorValue(AUParameter& parameter, const QString& text) const;

private:
    friend class AUParameterGroup;

    struct Observer {
        AUParameterObserverToken token;
        AUParameterAutomationObserver tell;
    };

    struct Links {
        std::weak_ptr<const AUParameterNode> parent;
        AUImplementorValueObserver observeValue;
        AUImplementorStringFromValueCallback stringFromValue;
        AUImplementorValueFromStringCallback valueFromString;
        std::vector<Observer> observers;
    };

    /// Calls `use` with the nearest callback; false if there is none.
    template <typename Callback, typename Use>
    bool withNearest(Callback Links::*callback, Use use) const;

    /// A node between a parameter and the root, while its links are read.
    struct Step;

    /// Reads the links of this node and of all above it, then calls `use` with the last step.
    template <typename Use>
    void climb(const Step* below, Use use) const;

    const QString m_identifier;
    const QString m_displayName;
    Snapshot<Links> m_links; // written on the main thread, read on any
};

} // namespace platform
