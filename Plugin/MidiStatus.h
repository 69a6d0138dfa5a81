#pragma once

#include <cstdint>

/// Bytes of MIDI 1.0; the low half of a channel message's status is its channel.
namespace noteloft::plugin::midi {

inline constexpr std::uint8_t noteOff = 0x80;
inline constexpr std::uint8_t noteOn = 0x90;
inline constexpr std::uint8_t keyPressure = 0xA0;
inline constexpr std::uint8_t control = 0xB0;
inline constexpr std::uint8_t program = 0xC0;
inline constexpr std::uint8_t channelPressure = 0xD0;
inline constexpr std::uint8_t system = 0xF0;

inline constexpr std::uint8_t allSoundOff = 120;
inline constexpr std::uint8_t allNotesOff = 123; ///< All from this one on end the channel's notes.

inline constexpr std::uint8_t defaultReleaseVelocity = 64;

} // namespace noteloft::plugin::midi
