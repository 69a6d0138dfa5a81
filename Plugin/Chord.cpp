#include "Plugin/Chord.h"

#include <algorithm>
#include <iterator>

namespace noteloft::plugin {

namespace {

constexpr int octave = 12;

/// A note of a chord by its place above the lowest.
struct Member {
    int steps;                    ///< In a scale of seven notes.
    std::array<int, 4> semitones; ///< In any other, the best first.
};

constexpr Member second = {1, {2, 1, 3, 4}};
constexpr Member minorThird = {2, {3, 4, 5, 2}};
constexpr Member majorThird = {2, {4, 3, 5, 2}};
constexpr Member fourth = {3, {5, 6, 4, 3}};
constexpr Member fifth = {4, {7, 8, 6, 9}};
constexpr Member minorSeventh = {6, {10, 11, 9, 12}};
constexpr Member majorSeventh = {6, {11, 10, 9, 12}};
constexpr Member octaveAbove = {7, {12, 12, 12, 12}};
constexpr Member ninth = {8, {14, 13, 15, 16}};

/// What is above the lowest note.
struct Shape {
    int count;
    std::array<Member, ChordPitches::longest - 1> members;
};

constexpr Shape shapes[] = {
    {0, {}},
    {1, {octaveAbove}},
    {1, {fifth}},
    {2, {majorThird, fifth}},
    {2, {minorThird, fifth}},
    {2, {second, fifth}},
    {2, {fourth, fifth}},
    {3, {majorThird, fifth, majorSeventh}},
    {3, {minorThird, fifth, minorSeventh}},
    {3, {majorThird, fifth, minorSeventh}},
    {3, {majorThird, fifth, ninth}},
};
static_assert(std::size(shapes) == std::size(chordNames));

/// The scale's own note for a member, above `last`, the one before it.
int pitchOf(const Member& member, const Harmony& harmony, int lowest, int last) {
    constexpr int notesWithNames = 7;
    if (noteCount(harmony.scale) == notesWithNames)
        return pitchAbove(harmony.scale, harmony.root, lowest, member.steps);
    for (const int interval : member.semitones)
        if (lowest + interval > last && contains(harmony.scale, harmony.root, lowest + interval))
            return lowest + interval;
    return pitchAbove(harmony.scale, harmony.root, last, 1);
}

} // namespace

ChordPitches::ChordPitches(int key, const Harmony& harmony) {
    const Shape& shape = shapes[static_cast<int>(harmony.chord)];
    std::array<int, longest> notes{nearestPitch(harmony.scale, harmony.root, key + harmony.transpose)};
    for (int member = 0; member < shape.count; ++member)
        notes[member + 1] = pitchOf(shape.members[member], harmony, notes[0], notes[member]);
    for (int note = 0; note <= shape.count; ++note) {
        const bool goesUp = note < std::min(harmony.inversion, shape.count);
        m_pitches[m_count++] = static_cast<std::uint8_t>(withinMidi(notes[note] + (goesUp ? octave : 0)));
    }
    const auto end = m_pitches.begin() + static_cast<std::ptrdiff_t>(m_count);
    std::sort(m_pitches.begin(), end);
    m_count = static_cast<std::size_t>(std::unique(m_pitches.begin(), end) - m_pitches.begin());
}

} // namespace noteloft::plugin
