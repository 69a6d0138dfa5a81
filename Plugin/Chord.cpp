#include "Plugin/Chord.h"

#include <algorithm>
#include <iterator>

namespace noteloft::plugin {

namespace {

constexpr int octave = 12;

/// Semitones above the key.
struct Shape {
    int count;
    std::array<int, ChordPitches::longest> intervals;
};

constexpr Shape shapes[] = {
    {1, {0}},           {2, {0, 12}},       {2, {0, 7}},        {3, {0, 4, 7}},
    {3, {0, 3, 7}},     {3, {0, 2, 7}},     {3, {0, 5, 7}},     {4, {0, 4, 7, 11}},
    {4, {0, 3, 7, 10}}, {4, {0, 4, 7, 10}}, {4, {0, 4, 7, 14}},
};
static_assert(std::size(shapes) == std::size(chordNames));

} // namespace

ChordPitches::ChordPitches(int key, const Harmony& harmony) {
    const Shape& shape = shapes[static_cast<int>(harmony.chord)];
    const int lowest = nearestPitch(harmony.scale, harmony.root, key + harmony.transpose);
    for (int note = 0; note < shape.count; ++note) {
        int pitch = nearestPitch(harmony.scale, harmony.root, lowest + shape.intervals[note]);
        if (note < std::min(harmony.inversion, shape.count - 1))
            pitch += octave;
        m_pitches[m_count++] = static_cast<std::uint8_t>(withinMidi(pitch));
    }
    const auto end = m_pitches.begin() + static_cast<std::ptrdiff_t>(m_count);
    std::sort(m_pitches.begin(), end);
    m_count = static_cast<std::size_t>(std::unique(m_pitches.begin(), end) - m_pitches.begin());
}

} // namespace noteloft::plugin
