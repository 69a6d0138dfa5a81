#pragma once

#include "Plugin/Scale.h"

#include <array>
#include <cstdint>
#include <span>

namespace noteloft::plugin {

/// In the order of `chordNames`.
enum class Chord { single, octave, fifth, major, minor, sus2, sus4, major7, minor7, dominant7, added9 };

inline constexpr const char* chordNames[] = {"Single", "Octave", "Fifth", "Major", "Minor", "Sus 2",
                                             "Sus 4",  "Maj 7",  "Min 7", "Dom 7", "Add 9"};

/// What a key is turned into.
struct Harmony {
    int transpose = 0; ///< Semitones.
    int root = 0;      ///< Pitch class of the scale's first note, 0 is C.
    Scale scale = Scale::chromatic;
    Chord chord = Chord::single;
    int inversion = 0; ///< How many of the lowest notes go up by an octave.
};

/// The pitches of a chord, from the lowest up, each once.
class ChordPitches {
public:
    static constexpr int longest = 4;

    /// The chord on `key`, 0 to 127: the key is transposed and brought into the scale, and the others are the
    /// scale's own notes above it. A scale of seven notes has one third, one fifth and one seventh on each of
    /// them, so a major and a minor chord are both the scale's own triad; in other scales the chord is as its
    /// name says where their notes allow it.
    ChordPitches(int key, const Harmony& harmony);

    std::span<const std::uint8_t> pitches() const { return {m_pitches.data(), m_count}; }

private:
    std::array<std::uint8_t, longest> m_pitches{};
    std::size_t m_count = 0;
};

} // namespace noteloft::plugin
