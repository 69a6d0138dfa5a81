#pragma once

#include "Plugin/NoteOutput.h"
#include "Plugin/NoteSchedule.h"
#include "Plugin/NoteSettings.h"
#include "Plugin/Random.h"

namespace noteloft::plugin {

/// Turns each strike of a key into the notes of a chord in a scale, strummed, of varying velocity and timing,
/// and passes all other messages on. What a strike became is kept with its key, so that its end finds the
/// same notes, each as late as it began, whatever the settings do in between. The output does not depend on
/// how time is cut into blocks.
///
/// One thread at a time. Nothing here allocates, locks or makes a system call.
class NoteProcessor {
public:
    /// `sampleRate` is in frames a second.
    explicit NoteProcessor(double sampleRate) : m_sampleRate(sampleRate) {}

    /// Starts anew: whatever sounds is ended in the next block.
    void restart();

    /// Begins a block, with settings for all of it. Only for a block that has frames; then `process` for each
    /// message by its time, then `endBlock`.
    void beginBlock(const NoteSettings& settings, MidiSink& sink);

    /// Handles one complete MIDI message; malformed channel messages are dropped.
    void process(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size, MidiSink& sink);

    void endBlock(std::uint32_t frameCount, MidiSink& sink);

private:
    /// What a key that is down was turned into.
    struct Strike {
        struct Part {
            std::uint8_t pitch;
            std::uint32_t delay; ///< Frames.
        };

        std::uint32_t number = 0;
        std::size_t count = 0;
        std::array<Part, ChordPitches::longest> parts{};
    };

    void press(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink);
    void release(std::uint32_t frame, std::uint8_t channel, std::uint8_t key, std::uint8_t velocity,
                 MidiSink& sink);
    void keyPressure(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink);
    void playUntil(std::uint64_t time, MidiSink& sink);
    void play(std::uint32_t frame, NoteSchedule::Kind kind, const Note& note, MidiSink& sink);
    void schedule(std::uint32_t frame, std::uint32_t delay, NoteSchedule::Kind kind, const Note& note,
                  MidiSink& sink);
    std::uint32_t frames(double seconds) const;
    std::uint8_t shapedVelocity(std::uint8_t velocity);
    bool strumsDown();

    const double m_sampleRate;
    NoteSettings m_settings;
    std::array<std::array<Strike, pitchCount>, channelCount> m_strikes{}; // by channel and key
    NoteSchedule m_schedule;
    NoteOutput m_output;
    Random m_random;
    std::uint64_t m_blockStart = 0; // frames
    std::uint32_t m_lastStrike = 0;
    bool m_lastWentDown = true;
    bool m_restarts = false;
};

} // namespace noteloft::plugin
