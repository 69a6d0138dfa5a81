#pragma once

#include "Plugin/MidiSink.h"
#include "Plugin/NoteSettings.h"

#include <array>
#include <cstdint>

namespace noteloft::plugin {

/// Transposes, scales, thins out and holds notes, and passes all other messages on.
///
/// On every channel the note-ons and note-offs of one sounding pitch alternate strictly, whatever the
/// settings do in between: a note-off goes to the pitch that its note-on was given, a pitch that is struck
/// again is ended first, and a note-off that finds no room is sent at the start of the next block.
///
/// One thread at a time. Nothing here allocates, locks or makes a system call.
class NoteProcessor {
public:
    NoteProcessor();

    /// Starts anew: whatever sounds is ended in the next block.
    void restart();

    /// Begins a block. Call it before `process`, and only for a block that has frames.
    void beginBlock(const NoteSettings& settings, MidiSink& sink);

    /// Handles one complete MIDI message; malformed channel messages are dropped.
    void process(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size, MidiSink& sink);

private:
    static constexpr int channelCount = 16;
    static constexpr int noteCount = 128;
    static constexpr std::int16_t noPitch = -1;

    enum class Voice : std::uint8_t {
        silent,
        sounding,
        held, ///< Its key is up, and it waits for the end of the hold.
        due,  ///< Its note-off found no room.
    };

    struct Channel {
        std::array<Voice, noteCount> voices{};
        std::array<std::int16_t, noteCount> pitchOfKey{};
        std::array<std::int16_t, noteCount> keyOfPitch{};
    };

    void noteOn(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink);
    void noteOff(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink);
    void keyPressure(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink);
    bool end(std::uint32_t frame, int channel, int pitch, std::uint8_t velocity, MidiSink& sink);
    void endChannel(std::uint32_t frame, int channel, MidiSink& sink);
    void endWaiting(bool all, MidiSink& sink);
    int transposed(int key) const;
    std::uint8_t scaled(std::uint8_t velocity) const;
    bool letsThrough();

    std::array<Channel, channelCount> m_channels;
    NoteSettings m_settings;
    bool m_endAll = false;
    std::uint32_t m_random;
};

} // namespace noteloft::plugin
