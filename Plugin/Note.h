#pragma once

#include <cstdint>

namespace noteloft::plugin {

inline constexpr int channelCount = 16;
inline constexpr int pitchCount = 128;

/// One note of one strike of a key, at its beginning or its end.
struct Note {
    std::uint32_t strike; ///< Tells the strikes of keys apart.
    std::uint8_t channel;
    std::uint8_t pitch;
    std::uint8_t velocity; ///< 1 to 127 at the beginning, 0 to 127 at the end.
};

} // namespace noteloft::plugin
