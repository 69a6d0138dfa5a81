#include "Plugin/Chord.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>
#include <vector>

using namespace noteloft::plugin;
using testing::ElementsAre;

TEST(Chord, FollowsTheScale) {
    const Harmony cMajor{.scale = Scale::major, .chord = Chord::major};
    const auto chord = [](int key, const Harmony& harmony) {
        const ChordPitches pitches(key, harmony);
        return std::vector<int>(pitches.pitches().begin(), pitches.pitches().end());
    };
    EXPECT_THAT(chord(60, cMajor), ElementsAre(60, 64, 67));
    EXPECT_THAT(chord(62, cMajor), ElementsAre(62, 65, 69)) << "the second note's is minor";
    EXPECT_THAT(chord(59, cMajor), ElementsAre(59, 62, 65)) << "the seventh note's is diminished";
    EXPECT_THAT(chord(61, cMajor), ElementsAre(60, 64, 67)) << "of two near notes the lower";
    EXPECT_THAT(chord(62, {.root = 2, .scale = Scale::major, .chord = Chord::major}),
                ElementsAre(62, 66, 69));
    EXPECT_THAT(chord(55, {.scale = Scale::major, .chord = Chord::major7}), ElementsAre(55, 59, 62, 65));
    EXPECT_THAT(chord(60, {.transpose = 5, .chord = Chord::minor, .inversion = 1}), ElementsAre(68, 72, 77));
    EXPECT_THAT(chord(60, {.chord = Chord::major, .inversion = 3}), ElementsAre(67, 72, 76));
    EXPECT_THAT(chord(126, {.chord = Chord::octave}), ElementsAre(126))
        << "beyond the range it is the same note";
    EXPECT_THAT(chord(0, {.transpose = -1, .scale = Scale::major}), ElementsAre(11));
    for (int key = 0; key < 128; ++key)
        for (int scale = 0; scale < static_cast<int>(std::size(scaleNames)); ++scale)
            for (const int pitch :
                 chord(key, {.transpose = -24, .root = 5, .scale = Scale(scale), .chord = Chord::added9}))
                ASSERT_TRUE(contains(Scale(scale), 5, pitch)) << key << " in " << scaleNames[scale];
}
