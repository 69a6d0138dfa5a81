#include "Platform/Gpu/FramePacer.h"

#include <gtest/gtest.h>

#include <random>

using platform::FramePacer;
using namespace std::chrono_literals;

namespace {

/// Frames in ten seconds of a timer that waits for whole milliseconds and comes up to `delay` late.
int framesInTenSeconds(int framesPerSecond, std::chrono::nanoseconds delay) {
    std::mt19937 random(1);
    FramePacer pacer;
    const FramePacer::Clock::time_point start;
    pacer.start(framesPerSecond, start);
    int frames = 0;
    for (auto now = start; now - start <= 10s; ++frames) {
        now += pacer.untilNext(now);
        now +=
            std::chrono::nanoseconds(std::uniform_int_distribution<std::int64_t>(0, delay.count())(random));
    }
    return frames - 1;
}

} // namespace

TEST(FramePacer, KeepsTheRateWithoutDrift) {
    for (const int rate : {24, 30, 50, 60, 75, 144})
        for (const auto delay : {0ns, 300'000ns, 2'000'000ns})
            EXPECT_NEAR(framesInTenSeconds(rate, delay), 10 * rate, 1) << rate << ", " << delay.count();
}

TEST(FramePacer, LeavesOutWhatCameTooLate) {
    FramePacer pacer;
    FramePacer::Clock::time_point now;
    pacer.start(60, now);
    EXPECT_EQ(pacer.untilNext(now), 17ms);
    now += 1s + 3ms;
    EXPECT_LE(pacer.untilNext(now), 14ms);
    now += 14ms;
    EXPECT_GE(pacer.untilNext(now), 16ms) << "no burst makes up for the time that was lost";
}
