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

/// A parameter or a tree of them. It has callbacks and observers; a tree's hold for all its parameters. They
/// run on the thread that sets a value, which may render audio: there they must not allocate, lock or block.
/// Whoever replaces or removes one waits until it no longer runs, unless this happens while the same thread
/// sets a value in the node. Add, replace and remove on the main thread.
class AUParameterNode : public std::enable_shared_from_this<AUParameterNode> {
public:
    virtual ~AUParameterNode() = default;
    AUParameterNode(const AUParameterNode&) = delete;
    AUParameterNode& operator=(const AUParameterNode&) = delete;

    /// A parameter's own callback of a kind is called in place of its tree's. Null for none.
    void setImplementorValueObserver(AUImplementorValueObserver observer);
    void setImplementorStringFromValueCallback(AUImplementorStringFromValueCallback callback);
    void setImplementorValueFromStringCallback(AUImplementorValueFromStringCallback callback);

    /// Observers are called after the implementor's, in the order in which they were added, those of a
    /// parameter before those of its tree; never with what was set with their own token as originator.
    AUParameterObserverToken tokenByAddingParameterObserver(AUParameterObserver observer);
    AUParameterObserverToken tokenByAddingParameterAutomationObserver(AUParameterAutomationObserver observer);

    void removeParameterObserver(AUParameterObserverToken token);

protected:
    AUParameterNode() = default;

    /// Tells the implementor, then the observers. Without a host time these get the current one, which is
    /// read only if there is an observer.
    void tell(AUParameter& parameter, AUParameterAutomationEvent event, std::optional<std::uint64_t> hostTime,
              AUParameterObserverToken originator) const;
    std::optional<QString> implementorString(AUParameter& parameter, std::optional<AUValue> value) const;
    std::optional<AUValue> implementorValue(AUParameter& parameter, const QString& text) const;

private:
    friend class AUParameterTree;

    struct Observer {
        AUParameterObserverToken token;
        AUParameterAutomationObserver tell;
    };

    struct Links {
        std::weak_ptr<const AUParameterNode> tree; // a parameter's
        AUImplementorValueObserver observeValue;
        AUImplementorStringFromValueCallback stringFromValue;
        AUImplementorValueFromStringCallback valueFromString;
        std::vector<Observer> observers;
    };

    /// A parameter is in the tree that it was put into last.
    void setTree(const std::weak_ptr<const AUParameterNode>& tree);

    /// Calls `use` with the callback of this node, else with its tree's.
    template <typename Callback, typename Use>
    void withNearest(Callback Links::*callback, Use use) const;

    using Reading = Snapshot<Links>::Reading;
    static void tellObservers(const Reading& reading, AUParameterAutomationEvent& event,
                              std::optional<std::uint64_t>& hostTime, AUParameterObserverToken originator);

    Snapshot<Links> m_links; // written on the main thread, read on any
};

} // namespace platform
