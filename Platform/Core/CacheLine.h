#pragma once

#include <cstddef>

namespace platform {

/// What processors pass to one another as a whole: bytes that two threads write lie this far apart.
inline constexpr std::size_t cacheLine = 64;

} // namespace platform
