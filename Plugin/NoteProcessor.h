#pragma once

#include "Plugin/MidiBacklog.h"
#include "Plugin/NoteOutput.h"
#include "Plugin/NoteSchedule.h"
#include "Plugin/NoteSettings.h"
#include "Plugin/Random.h"

namespace noteloft::plugin {

/// Turns each strike of a key into the notes of a chord in a scale, strummed, of varying velocity and timing,
/// and passes all other messages on, ends of notes that it knows nothing of among them. What a strike became
/// is kept with its key, so that its end finds the same notes, each as late as it began, whatever the
/// settings do in between. What finds no room in the output waits in its order; only note-ons are lost. The
/// output does not depend on how time is cut into blocks.
///
/// One thread at a time. Nothing here allocates, locks or makes a system call.
class NoteProcessor {
public:
    /// `sampleRate` is in frames a second.
    explicit NoteProcessor(double sampleRate) : m_sampleRate(sampleRate) {}

    /// Starts anew, with the same chances: whatever sounds is ended in the next block.
    void restart();

    /// What chance does from now on, and after every start. Not while a block is processed.
    void setSeed(std::uint32_t seed) {
        m_seed = seed;
        m_random = Random(seed);
    }

    /// Begins a block, with settings for all of it. Only for a block that has frames; then `process` for each
    /// message by its time, then `endBlock`.
    void beginBlock(const NoteSettings& settings, MidiSink& sink);

    /// Handles one complete MIDI message; malformed channel messages are dropped. While it is switched off
    /// all pass as they came.
    void process(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size, MidiSink& sink);

    void endBlock(std::uint32_t frameCount, MidiSink& sink);

private:
    /// What a key that is down was turned into.
    struct Strike {
        struct Part {
            std::uint8_t pitch;
            std::uint32_t delay; ///< Frames.
        };

        bool isDown = false; ///< Also without notes, if chance did not let it through.
        std::uint32_t number = 0;
        std::size_t count = 0;
        std::array<Part, ChordPitches::longest> parts{};
    };

    void pass(std::uint32_t frame, const std::uint8_t* bytes, std::uint32_t size, MidiSink& sink);
    /// False for a message of a note that is not known.
    bool handleNote(std::uint32_t frame, const std::uint8_t* bytes, MidiSink& sink);
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
    MidiBacklog m_backlog;
    std::uint32_t m_seed = Random::defaultSeed;
    Random m_random;
    std::uint64_t m_blockStart = 0; // frames
    std::uint32_t m_lastStrike = 0;
    bool m_lastWentDown = true;
    bool m_restarts = false;
};

} // namespace noteloft::plugin
