#include "MidiRecorder.h"

#include "Plugin/NoteProcessor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>
#include <utility>

using namespace noteloft::plugin;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Bytes = std::vector<std::uint8_t>;
using Message = RecordedMessage;

constexpr double sampleRate = 1000; // so that a frame is a millisecond

class NoteProcessorTest : public testing::Test {
protected:
    NoteProcessorTest() { begin({}); }

    void begin(const NoteSettings& settings) { m_processor.beginBlock(settings, m_recorder); }

    void send(std::uint32_t frame, const Bytes& bytes) {
        m_processor.process(frame, bytes.data(), static_cast<std::uint32_t>(bytes.size()), m_recorder);
    }

    std::vector<Message> take() { return m_recorder.take(); }

    void endBlock(std::uint32_t frameCount) { m_processor.endBlock(frameCount, m_recorder); }

    NoteProcessor m_processor{sampleRate};
    MidiRecorder m_recorder;
};

} // namespace

TEST_F(NoteProcessorTest, ChangesNothingByDefault) {
    const Bytes messages[] = {{0x93, 60, 100}, {0xA3, 60, 5}, {0x83, 60, 7},        {0xB0, 1, 64},
                              {0xC0, 12},      {0xD0, 33},    {0xE0, 0, 64},        {0xF8},
                              {0x90, 60, 100}, {0x80, 60, 0}, {0xF0, 1, 2, 3, 0xF7}};
    std::uint32_t frame = 0;
    std::vector<Message> expected;
    for (const Bytes& bytes : messages) {
        send(++frame, bytes);
        expected.push_back({frame, bytes});
    }
    EXPECT_EQ(take(), expected);
}

TEST_F(NoteProcessorTest, NoteOffFollowsItsNoteOnThroughAChangeOfTransposition) {
    begin({.harmony = {.transpose = 7}});
    send(3, {0x90, 60, 100});
    begin({.harmony = {.transpose = -5}});
    send(2, {0x90, 64, 100});
    send(4, {0xA0, 60, 50});
    send(6, {0x80, 60, 20});
    send(9, {0x90, 64, 0});
    EXPECT_THAT(take(), ElementsAre(Message{3, {0x90, 67, 100}}, Message{2, {0x90, 59, 100}},
                                    Message{4, {0xA0, 67, 50}}, Message{6, {0x80, 67, 20}},
                                    Message{9, {0x80, 59, 64}}));
}

TEST_F(NoteProcessorTest, NoteKeepsItsNameBeyondTheRange) {
    begin({.harmony = {.transpose = 24}});
    send(0, {0x90, 127, 1});
    begin({.harmony = {.transpose = -24}});
    send(0, {0x90, 0, 1});
    send(0, {0x90, 23, 1});
    EXPECT_THAT(take(),
                ElementsAre(Message{0, {0x90, 127, 1}}, Message{0, {0x90, 0, 1}}, Message{0, {0x90, 11, 1}}));
}

TEST_F(NoteProcessorTest, VelocityIsScaledWithinWhatANoteOnCanHave) {
    begin({.velocity = 2});
    send(0, {0x90, 60, 40});
    send(0, {0x90, 61, 100});
    begin({.velocity = 0});
    send(0, {0x90, 62, 100});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0x90, 60, 80}}, Message{0, {0x90, 61, 127}},
                                    Message{0, {0x90, 62, 1}}));
}

TEST_F(NoteProcessorTest, ChanceLetsItsShareThroughAndDropsTheNoteOffsOfTheOthers) {
    begin({.chance = 0.25F});
    for (int i = 0; i < 4000; ++i) {
        send(0, {0x90, 60, 100});
        send(0, {0x80, 60, 0});
        m_recorder.room = m_recorder.messages.size() + 1000;
    }
    const auto messages = take();
    // Four standard deviations of 4000 throws.
    EXPECT_NEAR(static_cast<double>(messages.size()) / 2, 1000, 110);
    for (std::size_t i = 0; i < messages.size(); ++i)
        ASSERT_EQ(messages[i].bytes[0], i % 2 == 0 ? 0x90 : 0x80);
    begin({.chance = 0});
    send(0, {0x90, 60, 100});
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(NoteProcessorTest, HoldSoundsOnUntilItIsSwitchedOff) {
    begin({.hold = true});
    send(0, {0x90, 60, 100});
    send(1, {0x80, 60, 0});
    send(2, {0x90, 64, 100});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0x90, 60, 100}}, Message{2, {0x90, 64, 100}}));
    begin({});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0x80, 60, 64}})) << "the key of 64 is still down";
    send(5, {0x80, 64, 0});
    EXPECT_THAT(take(), ElementsAre(Message{5, {0x80, 64, 0}}));
}

TEST_F(NoteProcessorTest, TwoKeysOfOnePitchDoNotLeaveItSounding) {
    begin({.harmony = {.transpose = 2}});
    send(0, {0x90, 60, 100});
    begin({});
    send(4, {0x90, 62, 90});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0x90, 62, 100}}, Message{4, {0x80, 62, 64}},
                                    Message{4, {0x90, 62, 90}}));
    send(5, {0x80, 60, 0});
    EXPECT_THAT(take(), IsEmpty()) << "the pitch belongs to the second key now";
    send(6, {0x80, 62, 0});
    EXPECT_THAT(take(), ElementsAre(Message{6, {0x80, 62, 0}}));
}

TEST_F(NoteProcessorTest, BypassEndsWhatSoundsAndPassesTheRest) {
    begin({.harmony = {.transpose = 5}, .hold = true});
    send(0, {0x90, 60, 100});
    send(0, {0x90, 62, 100});
    send(1, {0x80, 62, 0});
    take();
    begin({.harmony = {.transpose = 5}, .hold = true, .enabled = false});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0x80, 65, 64}}, Message{0, {0x80, 67, 64}}));
    send(3, {0x90, 50, 100});
    begin({.harmony = {.transpose = 5}});
    send(3, {0x80, 50, 0});
    EXPECT_THAT(take(), ElementsAre(Message{3, {0x90, 50, 100}}, Message{3, {0x80, 50, 0}}));
}

TEST_F(NoteProcessorTest, RestartEndsWhatSounds) {
    send(0, {0x9F, 60, 100});
    take();
    m_processor.restart();
    begin({});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0x8F, 60, 64}}));
    begin({});
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(NoteProcessorTest, AllNotesOffEndsTheNotesOfItsChannelFirst) {
    begin({.harmony = {.transpose = 1}, .hold = true});
    send(0, {0x90, 60, 100});
    send(0, {0x91, 60, 100});
    send(0, {0x80, 60, 0});
    take();
    send(8, {0xB0, 123, 0});
    EXPECT_THAT(take(), ElementsAre(Message{8, {0x80, 61, 64}}, Message{8, {0xB0, 123, 0}}));
}

TEST_F(NoteProcessorTest, NoteOffThatFindsNoRoomComesWithTheNextBlock) {
    send(0, {0x90, 60, 100});
    m_recorder.room = 1;
    send(1, {0x80, 60, 0});
    take();
    m_recorder.room = 0;
    begin({});
    m_recorder.room = 1;
    begin({});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0x80, 60, 64}}));
}

TEST_F(NoteProcessorTest, MalformedMessagesAreDropped) {
    for (const Bytes& bytes : {Bytes{0x90, 60}, Bytes{60, 100}, Bytes{0x90, 200, 100}, Bytes{0x90, 60, 200},
                               Bytes{0xC0, 1, 1}, Bytes{0x80, 60, 0, 0}})
        send(0, bytes);
    m_processor.process(0, nullptr, 0, m_recorder);
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(NoteProcessorTest, ChordsFollowTheScale) {
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

TEST_F(NoteProcessorTest, StrummedNotesEndAsLateAsTheyBegan) {
    const NoteSettings settings{.harmony = {.chord = Chord::major}, .strum = 0.02};
    begin(settings);
    send(5, {0x90, 60, 100});
    send(30, {0x80, 60, 7});
    endBlock(40);
    EXPECT_THAT(take(), ElementsAre(Message{5, {0x90, 60, 100}}, Message{25, {0x90, 64, 100}},
                                    Message{30, {0x80, 60, 7}}));
    begin({});
    endBlock(40);
    EXPECT_THAT(take(), ElementsAre(Message{5, {0x90, 67, 100}}, Message{10, {0x80, 64, 7}},
                                    Message{30, {0x80, 67, 7}}));
}

TEST_F(NoteProcessorTest, StrumsGoDownAndAlternate) {
    const auto pitches = [this](StrumDirection direction) {
        begin({.harmony = {.chord = Chord::fifth}, .strum = 0.001, .direction = direction});
        send(0, {0x90, 60, 100});
        send(4, {0x80, 60, 0});
        endBlock(8);
        return std::pair<int, int>{m_recorder.messages[0].bytes[1], take()[1].bytes[1]};
    };
    EXPECT_EQ(pitches(StrumDirection::up), std::pair(60, 67));
    EXPECT_EQ(pitches(StrumDirection::down), std::pair(67, 60));
    EXPECT_EQ(pitches(StrumDirection::alternate), std::pair(60, 67));
    EXPECT_EQ(pitches(StrumDirection::alternate), std::pair(67, 60));
}

TEST_F(NoteProcessorTest, AHumanHandIsLateAndUnevenWithinItsLimits) {
    begin({.dynamics = 0.5F, .timing = 0.01});
    std::set<std::uint32_t> delays;
    std::set<int> velocities;
    for (std::uint32_t i = 0; i < 200; ++i) {
        send(i * 20, {0x90, 60, 64});
        send(i * 20 + 5, {0x80, 60, 0});
    }
    endBlock(5000);
    const auto messages = take();
    ASSERT_EQ(messages.size(), 400U);
    for (std::size_t i = 0; i < messages.size(); i += 2) {
        ASSERT_EQ(messages[i + 1].frame, messages[i].frame + 5) << "a note keeps its length";
        delays.insert(messages[i].frame % 20);
        velocities.insert(messages[i].bytes[2]);
    }
    EXPECT_EQ(*delays.begin(), 0U);
    EXPECT_EQ(*delays.rbegin(), 10U);
    EXPECT_NEAR(*velocities.begin(), 32, 3);
    EXPECT_NEAR(*velocities.rbegin(), 96, 3);
}

TEST_F(NoteProcessorTest, WhatLiesAheadIsDroppedWithItsChannelAndByBypass) {
    const NoteSettings strummed{.harmony = {.chord = Chord::fifth}, .strum = 0.1};
    begin(strummed);
    send(0, {0x90, 60, 100});
    send(0, {0x91, 60, 100});
    send(9, {0xB0, 123, 0});
    endBlock(10);
    take();
    begin(strummed);
    endBlock(200);
    EXPECT_THAT(take(), ElementsAre(Message{90, {0x91, 67, 100}}));
    send(0, {0x90, 60, 100});
    take();
    begin({.enabled = false});
    EXPECT_EQ(take().size(), 3U) << "ends of what sounds";
    endBlock(200);
    EXPECT_THAT(take(), IsEmpty());
}

TEST_F(NoteProcessorTest, FullScheduleCutsNotesShortAndLosesNoEnd) {
    begin({.harmony = {.chord = Chord::major7}, .strum = 0.05});
    m_recorder.room = 100000;
    std::map<int, int> sounding;
    for (int round = 0; round < 3; ++round)
        for (std::uint8_t channel = 0; channel < 16; ++channel)
            for (std::uint8_t key = 0; key < 115; key += 12) { // pitches of their own
                send(0, {static_cast<std::uint8_t>(0x90 | channel), key, 100});
                send(0, {static_cast<std::uint8_t>(0x80 | channel), key, 0});
            }
    endBlock(1000);
    for (const Message& message : take())
        sounding[(message.bytes[0] & 0x0F) << 7 | message.bytes[1]] += message.bytes[0] >= 0x90 ? 1 : -1;
    for (const auto& [pitch, count] : sounding)
        ASSERT_EQ(count, 0) << pitch;
}

namespace {

/// Plays at random, the same for the same seed.
class Player {
public:
    explicit Player(unsigned seed) : m_random(seed) {}

    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    NoteSettings settings() {
        return {.harmony = {.transpose = below(49) - 24,
                            .root = below(12),
                            .scale = Scale(below(12)),
                            .chord = Chord(below(11)),
                            .inversion = below(4)},
                .strum = below(2) * 0.01,
                .direction = StrumDirection(below(3)),
                .dynamics = static_cast<float>(below(2)),
                .timing = below(2) * 0.02,
                .chance = static_cast<float>(1 + below(2)) / 2,
                .hold = below(3) == 0,
                .enabled = below(4) != 0};
    }

    Bytes note() {
        return {static_cast<std::uint8_t>((below(2) == 0 ? 0x80 : 0x90) | below(2)),
                static_cast<std::uint8_t>(50 + below(20)), static_cast<std::uint8_t>(below(128))};
    }

private:
    std::mt19937 m_random;
};

} // namespace

// Whatever is played, set and lost for want of room: the note-ons and note-offs of a pitch alternate, and in
// the end nothing sounds.
TEST_F(NoteProcessorTest, NothingIsEverStuck) {
    constexpr std::uint32_t frameCount = 16;
    Player player(7);
    std::map<std::pair<int, int>, bool> sounding;
    const auto check = [&] {
        std::uint32_t last = 0;
        for (const Message& message : take()) {
            ASSERT_GE(message.frame, std::exchange(last, message.frame)) << message;
            const int status = message.bytes[0] & 0xF0;
            if (status != 0x90 && status != 0x80)
                continue;
            bool& sounds = sounding[{message.bytes[0] & 0x0F, message.bytes[1]}];
            ASSERT_EQ(sounds, status == 0x80) << message;
            sounds = status == 0x90;
        }
        ASSERT_LT(last, frameCount);
    };
    for (int block = 0; block < 20000; ++block) {
        m_recorder.room = static_cast<std::size_t>(player.below(12));
        if (player.below(200) == 0)
            m_processor.restart();
        begin(player.settings());
        for (std::uint32_t frame = 0; frame < frameCount; frame += 2)
            if (player.below(2) == 0)
                send(frame, player.note());
        if (player.below(100) == 0)
            send(frameCount - 1, {0xB0, static_cast<std::uint8_t>(120 + player.below(8)), 0});
        endBlock(frameCount);
        ASSERT_NO_FATAL_FAILURE(check());
    }
    m_recorder.room = 1000;
    m_processor.restart();
    begin({});
    ASSERT_NO_FATAL_FAILURE(check());
    for (const auto& [pitch, sounds] : sounding)
        EXPECT_FALSE(sounds) << pitch.second << " on channel " << pitch.first;
}

TEST_F(NoteProcessorTest, TheOutputDoesNotDependOnHowTimeIsCutIntoBlocks) {
    constexpr std::uint32_t length = 4000;
    std::map<std::uint32_t, Bytes> input;
    Player composer(3);
    for (int i = 0; i < 600; ++i)
        input[static_cast<std::uint32_t>(composer.below(length))] = composer.note();
    const NoteSettings settings{.harmony = {.scale = Scale::dorian, .chord = Chord::added9},
                                .strum = 0.013,
                                .direction = StrumDirection::alternate,
                                .dynamics = 0.3F,
                                .timing = 0.03,
                                .chance = 0.8F};
    const auto play = [&](Player& player, int longest) {
        NoteProcessor processor(sampleRate);
        MidiRecorder recorder;
        recorder.room = 100000;
        std::vector<Message> heard;
        for (std::uint32_t start = 0; start < length;) {
            const auto count =
                std::min(length - start, 1 + static_cast<std::uint32_t>(player.below(longest)));
            processor.beginBlock(settings, recorder);
            for (auto it = input.lower_bound(start); it != input.lower_bound(start + count); ++it)
                processor.process(it->first - start, it->second.data(), 3, recorder);
            processor.endBlock(count, recorder);
            for (Message& message : recorder.take())
                heard.push_back({message.frame + start, std::move(message.bytes)});
            start += count;
        }
        return heard;
    };
    Player player(5);
    const auto whole = play(player, 100000);
    EXPECT_GT(whole.size(), 1000U);
    EXPECT_EQ(play(player, 1), whole);
    EXPECT_EQ(play(player, 97), whole);
}
