#include "Platform/AudioUnits/AUParameterNode.h"

#include "Platform/AudioUnits/HostTime.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace platform {

namespace {

AUParameterObserverToken nextToken() {
    static std::atomic<std::uint64_t> last = 0;
    return {++last};
}

} // namespace

AUParameterNode::AUParameterNode(QString identifier, QString displayName)
    : m_identifier(std::move(identifier)), m_displayName(std::move(displayName)) {}

void AUParameterNode::setParent(const std::weak_ptr<const AUParameterNode>& parent) {
    m_links.edit([&parent](Links& links) { links.parent = parent; });
}

void AUParameterNode::setImplementorValueObserver(AUImplementorValueObserver observer) {
    m_links.edit([&observer](Links& links) { links.observeValue = std::move(observer); });
}

void AUParameterNode::setImplementorStringFromValueCallback(AUImplementorStringFromValueCallback callback) {
    m_links.edit([&callback](Links& links) { links.stringFromValue = std::move(callback); });
}

void AUParameterNode::setImplementorValueFromStringCallback(AUImplementorValueFromStringCallback callback) {
    m_links.edit([&callback](Links& links) { links.valueFromString = std::move(callback); });
}

AUParameterObserverToken AUParameterNode::tokenByAddingParameterObserver(AUParameterObserver observer) {
    return tokenByAddingParameterAutomationObserver(
        [observer = std::move(observer)](const AUParameterAutomationEvent& event) {
            observer(event.address, event.value);
        });
}

AUParameterObserverToken
AUParameterNode::tokenByAddingParameterAutomationObserver(AUParameterAutomationObserver observer) {
    const AUParameterObserverToken token = nextToken();
    m_links.edit([&](Links& links) { links.observers.push_back({token, std::move(observer)}); });
    return token;
}

void AUParameterNode::removeParameterObserver(AUParameterObserverToken token) {
    m_links.edit([token](Links& links) {
        std::erase_if(links.observers, [token](const Observer& known) { return known.token == token; });
    });
}

template <typename Callback, typename Use>
bool AUParameterNode::withNearest(Callback Links::*callback, Use use) const {
    return m_links.read([&](const Links& links) {
        if (links.*callback) {
            use(links.*callback);
            return true;
        }
        const auto parent = links.parent.lock();
        return parent && parent->withNearest(callback, use);
    });
}

struct AUParameterNode::Step {
    Step(const AUParameterNode& node, const Step* stepBelow) : below(stepBelow), reading(node.m_links) {}

    // The nearest one.
    bool tellImplementor(AUParameter& parameter, AUValue value) const {
        if (below != nullptr && below->tellImplementor(parameter, value))
            return true;
        const auto& observe = reading.value().observeValue;
        if (observe)
            observe(parameter, value);
        return observe != nullptr;
    }

    // Upwards.
    void tellObservers(AUParameterAutomationEvent& event, std::optional<std::uint64_t>& hostTime,
                       AUParameterObserverToken originator) const {
        if (below != nullptr)
            below->tellObservers(event, hostTime, originator);
        const Links& links = reading.value();
        for (const Observer& observer : links.observers) {
            if (observer.token == originator || !isStillThere(links, observer))
                continue;
            if (!hostTime)
                hostTime = audioGetCurrentHostTime();
            event.hostTime = *hostTime;
            observer.tell(event);
        }
    }

    // The observers before it may have removed it.
    bool isStillThere(const Links& links, const Observer& observer) const {
        const Links& now = reading.value();
        return &now == &links ||
               std::any_of(now.observers.begin(), now.observers.end(),
                           [&](const Observer& one) { return one.token == observer.token; });
    }

    const Step* const below;
    const Snapshot<Links>::Reading reading;
};

template <typename Use>
void AUParameterNode::climb(const Step* below, Use use) const {
    const Step here(*this, below);
    if (const auto parent = here.reading.value().parent.lock())
        parent->climb(&here, use);
    else
        use(here);
}

void AUParameterNode::tell(AUParameter& parameter, AUParameterAutomationEvent event,
                           std::optional<std::uint64_t> hostTime, AUParameterObserverToken originator) const {
    climb(nullptr, [&](const Step& last) {
        last.tellImplementor(parameter, event.value);
        last.tellObservers(event, hostTime, originator);
    });
}

std::optional<QString> AUParameterNode::implementorString(AUParameter& parameter,
                                                          std::optional<AUValue> value) const {
    std::optional<QString> text;
    withNearest(&Links::stringFromValue,
                [&](const auto& stringFromValue) { text = stringFromValue(parameter, value); });
    return text;
}

std::optional<AUValue> AUParameterNode::implementorValue(AUParameter& parameter, const QString& text) const {
    std::optional<AUValue> value;
    withNearest(&Links::valueFromString,
                [&](const auto& valueFromString) { value = valueFromString(parameter, text); });
    return value;
}

} // namespace platform
