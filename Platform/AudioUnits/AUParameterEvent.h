#pragma once

#include <cstdint>

namespace platform {

using AUParameterAddress = std::uint64_t;
using AUValue = float;

/// What an event does to a parameter: set it, or begin or end a gesture of the user.
enum class AUParameterAutomationEventType : std::uint32_t { value = 0, touch = 1, release = 2 };

struct AUParameterAutomationEvent {
    /// Nanoseconds of `audioGetCurrentHostTime`; 0 for now.
    std::uint64_t hostTime = 0;
    AUParameterAddress address = 0;
    AUValue value = 0;
    AUParameterAutomationEventType eventType = AUParameterAutomationEventType::value;
};

/// Names an observer: to remove it, and to leave it out when a change is its own. The default is nobody.
struct AUParameterObserverToken {
    std::uint64_t id = 0;

    bool operator==(const AUParameterObserverToken&) const = default;
};

} // namespace platform
