#include "Plugin/Chord.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <vector>

using namespace noteloft::plugin;
using testing::ElementsAre;

namespace {

/// One line: what is heard when each note of the scale is played, from its root up.
std::string chordsOnAllDegrees(const std::string& title, const Harmony& harmony) {
    constexpr int middleC = 60;
    constexpr int octave = 12;
    std::string line;
    for (int key = middleC + harmony.root; key < middleC + harmony.root + octave; ++key) {
        if (!contains(harmony.scale, harmony.root, key))
            continue;
        line += line.empty() ? ": " : " | ";
        std::string chord;
        const ChordPitches heard(key, harmony);
        for (const int pitch : heard.pitches())
            chord += (chord.empty() ? "" : " ") + std::string(noteNames[pitch % octave]);
        line += chord;
    }
    return title + line + '\n';
}

} // namespace

TEST(Chord, SoundsLikeItsNameOnEveryDegree) {
    const auto table = [](Scale scale) {
        std::string all;
        for (std::size_t chord = 0; chord < std::size(chordNames); ++chord)
            all += chordsOnAllDegrees(chordNames[chord], {.scale = scale, .chord = Chord(chord)});
        return all;
    };
    EXPECT_EQ(table(Scale::major), R"(Single: C | D | E | F | G | A | B
Octave: C C | D D | E E | F F | G G | A A | B B
Fifth: C G | D A | E B | F C | G D | A E | B F
Major: C E G | D F A | E G B | F A C | G B D | A C E | B D F
Minor: C E G | D F A | E G B | F A C | G B D | A C E | B D F
Sus 2: C D G | D E A | E F B | F G C | G A D | A B E | B C F
Sus 4: C F G | D G A | E A B | F B C | G C D | A D E | B E F
Maj 7: C E G B | D F A C | E G B D | F A C E | G B D F | A C E G | B D F A
Min 7: C E G B | D F A C | E G B D | F A C E | G B D F | A C E G | B D F A
Dom 7: C E G B | D F A C | E G B D | F A C E | G B D F | A C E G | B D F A
Add 9: C E G D | D F A E | E G B F | F A C G | G B D A | A C E B | B D F C
)");
}

TEST(Chord, HasItsNotesInOrderAndEachOnceInEveryScale) {
    for (int scale = 0; scale < static_cast<int>(std::size(scaleNames)); ++scale)
        for (std::size_t chord = 0; chord < std::size(chordNames); ++chord)
            for (int key = 48; key < 60; ++key) {
                SCOPED_TRACE(std::string(scaleNames[scale]) + ' ' + chordNames[chord]);
                const ChordPitches heard(key, {.root = 5, .scale = Scale(scale), .chord = Chord(chord)});
                const ChordPitches exact(key, {.chord = Chord(chord)});
                ASSERT_EQ(heard.pitches().size(), exact.pitches().size()) << key;
                for (const int pitch : heard.pitches())
                    ASSERT_TRUE(contains(Scale(scale), 5, pitch)) << key;
            }
}

TEST(Chord, FollowsTheScale) {
    const Harmony cMajor{.scale = Scale::major, .chord = Chord::major};
    const auto chord = [](int key, const Harmony& harmony) {
        const ChordPitches pitches(key, harmony);
        return std::vector<int>(pitches.pitches().begin(), pitches.pitches().end());
    };
    EXPECT_THAT(chord(61, cMajor), ElementsAre(60, 64, 67)) << "of two near notes the lower";
    EXPECT_THAT(chord(62, {.root = 2, .scale = Scale::major, .chord = Chord::major}),
                ElementsAre(62, 66, 69));
    EXPECT_THAT(chord(60, {.transpose = 5, .chord = Chord::minor, .inversion = 1}), ElementsAre(68, 72, 77));
    EXPECT_THAT(chord(60, {.chord = Chord::major, .inversion = 3}), ElementsAre(67, 72, 76));
    EXPECT_THAT(chord(126, {.chord = Chord::octave}), ElementsAre(126))
        << "beyond the range it is the same note";
    EXPECT_THAT(chord(0, {.transpose = -1, .scale = Scale::major}), ElementsAre(11));
}
