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

/// Whether a message begins a note. A note-on without velocity ends one.
constexpr bool isNoteOn(const std::uint8_t* bytes, std::uint32_t size) {
    return size == 3 && (bytes[0] & 0xF0) == noteOn && bytes[2] > 0;
}

constexpr bool isNoteOff(const std::uint8_t* bytes, std::uint32_t size) {
    return size == 3 && ((bytes[0] & 0xF0) == noteOff || ((bytes[0] & 0xF0) == noteOn && bytes[2] == 0));
}

/// Whether it ends all notes of its channel.
constexpr bool isChannelEnd(const std::uint8_t* bytes, std::uint32_t size) {
    return size == 3 && (bytes[0] & 0xF0) == control && (bytes[1] == allSoundOff || bytes[1] >= allNotesOff);
}

} // namespace noteloft::plugin::midi
