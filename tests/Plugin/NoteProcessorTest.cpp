#include "MidiRecorder.h"

#include "Plugin/NoteProcessor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <random>

using noteloft::plugin::NoteProcessor;
using noteloft::plugin::NoteSettings;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Bytes = std::vector<std::uint8_t>;
using Message = RecordedMessage;

class NoteProcessorTest : public testing::Test {
protected:
    NoteProcessorTest() { begin({}); }

    void begin(const NoteSettings& settings) { m_processor.beginBlock(settings, m_recorder); }

    void send(std::uint32_t frame, const Bytes& bytes) {
        m_processor.process(frame, bytes.data(), static_cast<std::uint32_t>(bytes.size()), m_recorder);
    }

    std::vector<Message> take() { return m_recorder.take(); }

    NoteProcessor m_processor;
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
    begin({.transpose = 7});
    send(3, {0x90, 60, 100});
    begin({.transpose = -5});
    send(2, {0x90, 64, 100});
    send(4, {0xA0, 60, 50});
    send(6, {0x80, 60, 20});
    send(9, {0x90, 64, 0});
    EXPECT_THAT(take(), ElementsAre(Message{3, {0x90, 67, 100}}, Message{2, {0x90, 59, 100}},
                                    Message{4, {0xA0, 67, 50}}, Message{6, {0x80, 67, 20}},
                                    Message{9, {0x80, 59, 64}}));
}

TEST_F(NoteProcessorTest, NoteKeepsItsNameBeyondTheRange) {
    begin({.transpose = 24});
    send(0, {0x90, 127, 1});
    begin({.transpose = -24});
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
    begin({.transpose = 2});
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
    begin({.transpose = 5, .hold = true});
    send(0, {0x90, 60, 100});
    send(0, {0x90, 62, 100});
    send(1, {0x80, 62, 0});
    take();
    begin({.transpose = 5, .hold = true, .enabled = false});
    EXPECT_THAT(take(), ElementsAre(Message{0, {0x80, 65, 64}}, Message{0, {0x80, 67, 64}}));
    send(3, {0x90, 50, 100});
    begin({.transpose = 5});
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
    begin({.transpose = 1, .hold = true});
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

// Whatever is played, set and lost for want of room: the note-ons and note-offs of a pitch alternate, and in
// the end nothing sounds.
TEST_F(NoteProcessorTest, NothingIsEverStuck) {
    std::mt19937 random(7);
    const auto below = [&random](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    std::map<std::pair<int, int>, bool> sounding;
    const auto check = [&] {
        for (const Message& message : take()) {
            const int status = message.bytes[0] & 0xF0;
            if (status != 0x90 && status != 0x80)
                continue;
            bool& sounds = sounding[{message.bytes[0] & 0x0F, message.bytes[1]}];
            ASSERT_EQ(sounds, status == 0x80) << message;
            sounds = status == 0x90;
        }
    };
    for (int block = 0; block < 20000; ++block) {
        m_recorder.room = static_cast<std::size_t>(below(12));
        if (below(200) == 0)
            m_processor.restart();
        begin({.transpose = below(49) - 24,
               .chance = static_cast<float>(below(3)) / 2,
               .hold = below(3) == 0,
               .enabled = below(4) != 0});
        for (int event = below(8); event > 0; --event)
            send(0, {static_cast<std::uint8_t>((below(2) == 0 ? 0x80 : 0x90) | below(2)),
                     static_cast<std::uint8_t>(50 + below(20)), static_cast<std::uint8_t>(below(128))});
        if (below(100) == 0)
            send(0, {0xB0, static_cast<std::uint8_t>(120 + below(8)), 0});
        ASSERT_NO_FATAL_FAILURE(check());
    }
    m_recorder.room = 1000;
    m_processor.restart();
    begin({});
    ASSERT_NO_FATAL_FAILURE(check());
    for (const auto& [pitch, sounds] : sounding)
        EXPECT_FALSE(sounds) << pitch.second << " on channel " << pitch.first;
}
