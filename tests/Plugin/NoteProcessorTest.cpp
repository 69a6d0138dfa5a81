#include "MidiRecorder.h"

#include "Plugin/NoteProcessor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

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

TEST_F(NoteProcessorTest, SharedPitchSoundsUntilItsLastKeyIsLetGo) {
    begin({.harmony = {.chord = Chord::octave}});
    send(0, {0x90, 48, 100});
    send(2, {0x90, 60, 90});
    take();
    send(4, {0x80, 60, 7});
    EXPECT_THAT(take(), ElementsAre(Message{4, {0x80, 72, 7}})) << "the lower key still has this one";
    send(5, {0xA0, 48, 9});
    send(6, {0x80, 48, 0});
    EXPECT_THAT(take(), ElementsAre(Message{5, {0xA0, 48, 9}}, Message{5, {0xA0, 60, 9}},
                                    Message{6, {0x80, 48, 0}}, Message{6, {0x80, 60, 0}}));
}

TEST_F(NoteProcessorTest, LateNoteOfTheLastStrikeTakesNothingFromTheNext) {
    begin({.harmony = {.chord = Chord::fifth}, .strum = 0.01});
    send(0, {0x90, 60, 100});
    send(4, {0x80, 60, 0});
    begin({.harmony = {.chord = Chord::fifth}});
    send(6, {0x90, 60, 90});
    endBlock(100);
    EXPECT_EQ(take().back(), (Message{10, {0x90, 67, 100}})) << "the second strike's key is still down";
    send(0, {0x80, 60, 1});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0x80, 60, 1}}, Message{0, {0x80, 67, 1}}));
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

TEST_F(NoteProcessorTest, BypassPassesEverythingAsItCame) {
    begin({.harmony = {.chord = Chord::major}, .strum = 0.01, .chance = 0, .hold = true, .enabled = false});
    const Bytes messages[] = {{0x90, 60, 100}, {0x90, 60, 90}, {0x90, 60, 0}, {0x80, 60, 3},
                              {0x80, 61, 3},   {0xA0, 62, 7},  {0xA0, 60, 7}, {0x90, 200},
                              {0xB0, 123, 0},  {0xF0, 1, 0xF7}};
    std::vector<Message> expected;
    for (const Bytes& bytes : messages) {
        send(4, bytes);
        expected.push_back({4, bytes});
    }
    endBlock(100);
    EXPECT_EQ(take(), expected);
}

TEST_F(NoteProcessorTest, EndsAndPressureOfUnknownNotesPass) {
    const Bytes messages[] = {{0x81, 60, 9}, {0x91, 61, 0}, {0xA1, 60, 9}};
    std::vector<Message> expected;
    for (const Bytes& bytes : messages) {
        send(0, bytes);
        expected.push_back({0, bytes});
    }
    EXPECT_EQ(take(), expected);
}

TEST_F(NoteProcessorTest, WhatFindsNoRoomWaitsInItsOrder) {
    const Bytes waiting[] = {
        {0xB0, 64, 0}, {0xF0, 1, 2, 3, 4, 0xF7}, {0xE0, 0, 64}, {0x80, 60, 5}, {0xC0, 3}};
    send(0, {0x90, 60, 100});
    m_recorder.room = 1;
    for (const Bytes& bytes : waiting)
        send(1, bytes);
    send(1, {0x90, 62, 100}); // lost: it would be late
    EXPECT_EQ(take().size(), 1U);
    m_recorder.room = 2;
    std::vector<Message> heard;
    for (int block = 0; block < 3; ++block) {
        begin({});
        for (const Message& message : take())
            heard.push_back(message);
    }
    std::vector<Message> expected;
    for (const Bytes& bytes : waiting)
        expected.push_back({0, bytes});
    EXPECT_EQ(heard, expected);
}

TEST_F(NoteProcessorTest, AMessageThatNeverFitsHoldsNothingUp) {
    Bytes tooLong(2000, 1);
    tooLong.front() = 0xF0;
    tooLong.back() = 0xF7;
    m_recorder.longest = 1000;
    send(0, tooLong);
    send(1, {0xB0, 64, 0});
    for (int block = 0; block < 10; ++block)
        begin({});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0xB0, 64, 0}}));
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

TEST_F(NoteProcessorTest, MalformedMessagesAreDropped) {
    for (const Bytes& bytes : {Bytes{0x90, 60}, Bytes{60, 100}, Bytes{0x90, 200, 100}, Bytes{0x90, 60, 200},
                               Bytes{0xC0, 1, 1}, Bytes{0x80, 60, 0, 0}})
        send(0, bytes);
    m_processor.process(0, nullptr, 0, m_recorder);
    EXPECT_THAT(take(), IsEmpty());
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
