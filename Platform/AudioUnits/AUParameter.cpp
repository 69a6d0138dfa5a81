#include "Platform/AudioUnits/AUParameter.h"

#include <utility>

namespace platform {

AUParameter::AUParameter(AUParameterDescription description) : m_description(std::move(description)) {}

void AUParameter::setValue(AUValue value, AUParameterObserverToken originator, std::uint64_t atHostTime,
                           AUParameterAutomationEventType eventType) {
    set(value, originator, atHostTime, eventType);
}

void AUParameter::setValueNow(AUValue value, AUParameterAutomationEventType eventType) {
    set(value, {}, std::nullopt, eventType);
}

void AUParameter::set(AUValue value, AUParameterObserverToken originator,
                      std::optional<std::uint64_t> hostTime, AUParameterAutomationEventType eventType) {
    m_value.store(value, std::memory_order_relaxed);
    tell(*this, {.address = address(), .value = value, .eventType = eventType}, hostTime, originator);
}

QString AUParameter::string(std::optional<AUValue> fromValue) {
    if (auto text = implementorString(*this, fromValue))
        return *text;
    if (!fromValue)
        return {};
    const QStringList names = valueStrings().value_or(QStringList());
    const bool hasName = *fromValue >= 0 && *fromValue < static_cast<AUValue>(names.size());
    return hasName ? names[static_cast<qsizetype>(*fromValue)] : QString::number(*fromValue);
}

AUValue AUParameter::value(const QString& fromString) {
    if (const auto value = implementorValue(*this, fromString))
        return *value;
    return fromString.toFloat();
}

} // namespace platform
