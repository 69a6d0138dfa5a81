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

void AUParameterNode::setTree(const std::weak_ptr<const AUParameterNode>& tree) {
    m_links.edit([&tree](Links& links) { links.tree = tree; });
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
void AUParameterNode::withNearest(Callback Links::*callback, Use use) const {
    m_links.read([&](const Links& links) {
        if (links.*callback)
            use(links.*callback);
        else if (const auto tree = links.tree.lock())
            tree->withNearest(callback, use);
    });
}

void AUParameterNode::tellObservers(const Reading& reading, AUParameterAutomationEvent& event,
                                    std::optional<std::uint64_t>& hostTime,
                                    AUParameterObserverToken originator) {
    const Links& links = reading.value();
    // The observers before it may have removed it.
    const auto isStillThere = [&](AUParameterObserverToken token) {
        const Links& now = reading.value();
        return &now == &links || std::any_of(now.observers.begin(), now.observers.end(),
                                             [&](const Observer& one) { return one.token == token; });
    };
    for (const Observer& observer : links.observers) {
        if (observer.token == originator || !isStillThere(observer.token))
            continue;
        if (!hostTime)
            hostTime = audioGetCurrentHostTime();
        event.hostTime = *hostTime;
        observer.tell(event);
    }
}

void AUParameterNode::tell(AUParameter& parameter, AUParameterAutomationEvent event,
                           std::optional<std::uint64_t> hostTime, AUParameterObserverToken originator) const {
    const Reading own(m_links);
    const auto tree = own.value().tree.lock();
    std::optional<Reading> trees;
    if (tree)
        trees.emplace(tree->m_links);
    if (const auto& observe = own.value().observeValue)
        observe(parameter, event.value);
    else if (trees && trees->value().observeValue)
        trees->value().observeValue(parameter, event.value);
    tellObservers(own, event, hostTime, originator);
    if (trees)
        tellObservers(*trees, event, hostTime, originator);
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
