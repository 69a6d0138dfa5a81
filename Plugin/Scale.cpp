#include "Plugin/Scale.h"

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <iterator>

namespace noteloft::plugin {

namespace {

constexpr int octave = 12;
constexpr int highestPitch = 127;

/// A bit for each semitone above the root.
constexpr std::uint16_t steps(std::initializer_list<int> semitones) {
    std::uint16_t bits = 0;
    for (const int semitone : semitones)
        bits |= static_cast<std::uint16_t>(1U << semitone);
    return bits;
}

constexpr std::uint16_t scales[] = {
    steps({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}),
    steps({0, 2, 4, 5, 7, 9, 11}),
    steps({0, 2, 3, 5, 7, 8, 10}),
    steps({0, 2, 3, 5, 7, 8, 11}),
    steps({0, 2, 3, 5, 7, 9, 10}),
    steps({0, 1, 3, 5, 7, 8, 10}),
    steps({0, 2, 4, 6, 7, 9, 11}),
    steps({0, 2, 4, 5, 7, 9, 10}),
    steps({0, 2, 4, 7, 9}),
    steps({0, 3, 5, 7, 10}),
    steps({0, 3, 5, 6, 7, 10}),
    steps({0, 2, 4, 6, 8, 10}),
};
static_assert(std::size(scales) == std::size(scaleNames));

} // namespace

bool contains(Scale scale, int root, int pitch) {
    const int semitone = ((pitch - root) % octave + octave) % octave;
    return (scales[static_cast<int>(scale)] >> semitone & 1U) != 0;
}

int nearestPitch(Scale scale, int root, int pitch) {
    for (int distance = 0;; ++distance) { // ends, since the scale has its root
        if (contains(scale, root, pitch - distance))
            return pitch - distance;
        if (contains(scale, root, pitch + distance))
            return pitch + distance;
    }
}

int noteCount(Scale scale) {
    return std::popcount(scales[static_cast<int>(scale)]);
}

int pitchAbove(Scale scale, int root, int pitch, int steps) {
    for (; steps > 0; --steps)
        do
            ++pitch;
        while (!contains(scale, root, pitch));
    return pitch;
}

int withinMidi(int pitch) {
    while (pitch < 0)
        pitch += octave;
    while (pitch > highestPitch)
        pitch -= octave;
    return pitch;
}

} // namespace noteloft::plugin
