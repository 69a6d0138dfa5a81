#pragma once

#include <cstdint>

namespace platform {

/// The time that events of parameters are stamped with: nanoseconds of a clock that never goes back, of no
/// fixed origin. Any thread.
std::uint64_t audioGetCurrentHostTime();

} // namespace platform
