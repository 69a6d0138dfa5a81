#pragma once

#include <chrono>
#include <cstdint>

namespace platform {

/// The time that events of parameters are stamped with: nanoseconds of a clock that never goes back, of no
/// fixed origin. Any thread.
inline std::uint64_t audioGetCurrentHostTime() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count());
}

} // namespace platform
