#pragma once

#include "Plugin/MidiSink.h"
#include "Plugin/Note.h"

#include <array>
#include <cstddef>

namespace noteloft::plugin {

/// What sounds. On every channel the note-ons and note-offs of one pitch alternate strictly: a pitch that is
/// struck again is ended first, one that several strikes share ends with the last of them, and a note-off
/// that finds no room is sent when there is some. Frames are those of the block.
class NoteOutput {
public:
    /// How many notes can be down at once; the others are left out.
    static constexpr std::size_t capacity = 2048;

    void begin(std::uint32_t frame, const Note& note, MidiSink& sink);

    /// With `holds` the note sounds on until `endHeld`.
    void end(std::uint32_t frame, const Note& note, bool holds, MidiSink& sink);

    bool isSounding(const Note& note) const;

    /// Whether no note of this pitch is on its way or sounds.
    bool isSilent(std::uint8_t channel, std::uint8_t pitch) const {
        return m_states[channel][pitch] == State::silent;
    }

    /// Somebody else has sent the beginning of a note, or its end.
    void noteBegan(const Note& note);
    void noteEnded(std::uint8_t channel, std::uint8_t pitch);

    void endHeld(std::uint32_t frame, MidiSink& sink);
    void endChannel(std::uint32_t frame, std::uint8_t channel, MidiSink& sink);
    void endAll(std::uint32_t frame, MidiSink& sink);

    /// Sends the note-offs that found no room.
    void sendDue(std::uint32_t frame, MidiSink& sink);

private:
    enum class State : std::uint8_t { silent, sounding, held, due };

    template <typename Predicate>
    void endIf(std::uint32_t frame, MidiSink& sink, Predicate matches);
    bool sendEnd(std::uint32_t frame, int channel, int pitch, std::uint8_t velocity, MidiSink& sink);

    void setState(int channel, int pitch, State state);

    State state(const Note& note) const { return m_states[note.channel][note.pitch]; }

    bool isAnyDown(const Note& note) const;

    /// False if there was none.
    template <typename Predicate>
    bool forgetIf(Predicate matches);

    std::array<std::array<State, pitchCount>, channelCount> m_states{}; // by channel and pitch
    int m_waitingCount = 0;                                             // pitches that are held or due
    std::array<Note, capacity> m_down;                                  // what has begun and not ended
    std::size_t m_downCount = 0;
};

} // namespace noteloft::plugin
