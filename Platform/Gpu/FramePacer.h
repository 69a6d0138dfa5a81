#pragma once

#include <chrono>
#include <cstdint>

namespace platform {

/// Says when frames are due, by the clock: timers count in whole milliseconds, of which no rate divides a
/// second evenly.
class FramePacer {
public:
    using Clock = std::chrono::steady_clock;

    /// The first frame is due one frame's time after `now`. `framesPerSecond` is above 0.
    void start(int framesPerSecond, Clock::time_point now);

    /// How long to wait from `now` for the next frame. Frames whose time has passed are left out.
    std::chrono::milliseconds untilNext(Clock::time_point now);

private:
    Clock::time_point due(std::int64_t frame) const;

    Clock::time_point m_start;
    int m_framesPerSecond = 60;
    std::int64_t m_frame = 0; // the last that was waited for
};

} // namespace platform
