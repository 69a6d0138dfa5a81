#include "MidiRecorder.h"

#include "Plugin/MidiStatus.h"
#include "Plugin/NoteProcessor.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <utility>

using namespace noteloft::plugin;

namespace {

using Bytes = std::vector<std::uint8_t>;
using Message = RecordedMessage;

constexpr double sampleRate = 1000; // so that a frame is a millisecond

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

// Whatever is played, set and lost for want of room: a pitch that sounds is not begun once more, except by
// the player in bypass, and in the end nothing sounds.
TEST(NoteProcessorAtRandom, LeavesNothingStuck) {
    NoteProcessor processor(sampleRate);
    MidiRecorder recorder;
    constexpr std::uint32_t frameCount = 16;
    Player player(7);
    std::map<std::pair<int, int>, bool> sounding;
    bool isBypassed = false;
    const auto send = [&](std::uint32_t frame, const Bytes& bytes) {
        processor.process(frame, bytes.data(), static_cast<std::uint32_t>(bytes.size()), recorder);
    };
    const auto check = [&] {
        std::uint32_t last = 0;
        for (const Message& message : recorder.take()) {
            ASSERT_GE(message.frame, std::exchange(last, message.frame)) << message;
            const int status = message.bytes[0] & 0xF0;
            if (midi::isChannelEnd(message.bytes.data(), 3))
                std::erase_if(sounding, [&](const auto& pitch) {
                    return pitch.first.first == (message.bytes[0] & 0x0F);
                });
            if (status != 0x90 && status != 0x80)
                continue;
            bool& sounds = sounding[{message.bytes[0] & 0x0F, message.bytes[1]}];
            const bool begins = status == 0x90 && message.bytes[2] > 0;
            ASSERT_FALSE(sounds && begins && !isBypassed) << message;
            sounds = begins;
        }
        ASSERT_LT(last, frameCount);
    };
    for (int block = 0; block < 20000; ++block) {
        recorder.room = static_cast<std::size_t>(player.below(12));
        if (player.below(200) == 0)
            processor.restart();
        const NoteSettings settings = player.settings();
        isBypassed = !settings.enabled;
        processor.beginBlock(settings, recorder);
        for (std::uint32_t frame = 0; frame < frameCount; frame += 2)
            if (player.below(2) == 0)
                send(frame, player.note());
        if (player.below(100) == 0)
            send(frameCount - 1, {0xB0, static_cast<std::uint8_t>(120 + player.below(8)), 0});
        processor.endBlock(frameCount, recorder);
        ASSERT_NO_FATAL_FAILURE(check());
    }
    recorder.room = 1000;
    isBypassed = false;
    processor.beginBlock({}, recorder);
    for (std::uint8_t channel = 0; channel < 2; ++channel)
        for (std::uint8_t key = 50; key < 70; ++key)
            send(0, {static_cast<std::uint8_t>(0x80 | channel), key, 0});
    processor.endBlock(frameCount, recorder);
    ASSERT_NO_FATAL_FAILURE(check());
    for (int block = 0; block < 10; ++block) { // what ends late
        processor.beginBlock({}, recorder);
        processor.endBlock(frameCount, recorder);
        ASSERT_NO_FATAL_FAILURE(check());
    }
    for (const auto& [pitch, sounds] : sounding)
        EXPECT_FALSE(sounds) << pitch.second << " on channel " << pitch.first;
}

TEST(NoteProcessorAtRandom, OutputDoesNotDependOnHowTimeIsCutIntoBlocks) {
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
