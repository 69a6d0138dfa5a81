#pragma once

#include "Platform/AudioUnits/AUParameterNode.h"
#include "Platform/AudioUnits/AudioUnitParameterOptions.h"
#include "Platform/AudioUnits/AudioUnitParameterUnit.h"

#include <QList>
#include <QStringList>

#include <atomic>
#include <optional>

namespace platform {

/// What a parameter is made from.
struct AUParameterDescription {
    QString identifier = {};
    QString name = {};
    AUParameterAddress address = 0;
    AUValue min = 0;
    AUValue max = 1;
    AudioUnitParameterUnit unit = AudioUnitParameterUnit::generic;
    std::optional<QString> unitName = {};
    AudioUnitParameterOptions flags = 0;
    /// Names of the values, from 0.
    std::optional<QStringList> valueStrings = {};
    std::optional<QList<AUParameterAddress>> dependentParameters = {};
};

/// A parameter as a host sees it. Its range is a promise, not a limit: `setValue` clamps nothing.
class AUParameter : public AUParameterNode {
public:
    explicit AUParameter(AUParameterDescription description);

    /// Unique in a tree.
    const QString& identifier() const { return m_description.identifier; }

    /// For people.
    const QString& displayName() const { return m_description.name; }

    AUParameterAddress address() const { return m_description.address; }

    AUValue minValue() const { return m_description.min; }

    AUValue maxValue() const { return m_description.max; }

    AudioUnitParameterUnit unit() const { return m_description.unit; }

    const std::optional<QString>& unitName() const { return m_description.unitName; }

    AudioUnitParameterOptions flags() const { return m_description.flags; }

    const std::optional<QStringList>& valueStrings() const { return m_description.valueStrings; }

    const std::optional<QList<AUParameterAddress>>& dependentParameters() const {
        return m_description.dependentParameters;
    }

    /// Any thread. 0 at first.
    AUValue value() const { return m_value.load(std::memory_order_relaxed); }

    /// Stores the value, then calls the nearest implementor's value observer, then the observers except the
    /// originator's, all before it returns, equal values and every type of event included. Any thread.
    void setValue(AUValue value, AUParameterObserverToken originator = {}, std::uint64_t atHostTime = 0,
                  AUParameterAutomationEventType eventType = AUParameterAutomationEventType::value);

    /// The same, from nobody and at the current host time, which is read only if somebody observes.
    void setValueNow(AUValue value, AUParameterAutomationEventType eventType);

    /// The implementor's text for a value. Without an implementor: the name of the value, else the number in
    /// the C locale; empty without a value.
    QString string(std::optional<AUValue> fromValue);

    /// The implementor's value for a text. Without an implementor: the number that `text` is in the C locale,
    /// else 0.
    AUValue value(const QString& fromString);

private:
    void set(AUValue value, AUParameterObserverToken originator, std::optional<std::uint64_t> hostTime,
             AUParameterAutomationEventType eventType);

    const AUParameterDescription m_description;
    std::atomic<AUValue> m_value = 0; // any thread
};

} // namespace platform
