#pragma once

#include <cstdint>

namespace platform {

enum class AudioComponentValidationResult : std::uint32_t {
    unknown = 0,
    passed = 1,
    failed = 2,
    timedOut = 3,
    unauthorizedOpen = 4,
    unauthorizedInitialize = 5,
};

} // namespace platform
