#pragma once

#include "Plugin/MidiSink.h"
#include "Plugin/Note.h"

#include <array>

namespace noteloft::plugin {

/// What sounds. On every channel the note-ons and note-offs of one pitch alternate strictly: a pitch that is
/// struck again is ended first, the end of a note whose pitch has gone to another strike is left out, and a
/// note-off that finds no room is sent when there is some. Frames are those of the block.
class NoteOutput {
public:
    void begin(std::uint32_t frame, const Note& note, MidiSink& sink);

    /// With `holds` the note sounds on until `endHeld`.
    void end(std::uint32_t frame, const Note& note, bool holds, MidiSink& sink);

    bool isSounding(const Note& note) const;

    void endHeld(std::uint32_t frame, MidiSink& sink);
    void endChannel(std::uint32_t frame, std::uint8_t channel, MidiSink& sink);
    void endAll(std::uint32_t frame, MidiSink& sink);

    /// Sends the note-offs that found no room.
    void sendDue(std::uint32_t frame, MidiSink& sink);

private:
    enum class State : std::uint8_t { silent, sounding, held, due };

    struct Voice {
        State state = State::silent;
        std::uint32_t strike = 0;
    };

    template <typename Predicate>
    void endIf(std::uint32_t frame, MidiSink& sink, Predicate matches);
    bool sendEnd(std::uint32_t frame, int channel, int pitch, std::uint8_t velocity, MidiSink& sink);

    void setState(Voice& voice, State state);

    Voice& voice(const Note& note) { return m_voices[note.channel][note.pitch]; }

    std::array<std::array<Voice, pitchCount>, channelCount> m_voices{};
    int m_waitingCount = 0; // voices that are held or due
};

} // namespace noteloft::plugin
