#include "Platform/Gpu/FramePacer.h"

#include <algorithm>

namespace platform {

using namespace std::chrono_literals;

void FramePacer::start(int framesPerSecond, Clock::time_point now) {
    m_framesPerSecond = framesPerSecond;
    m_start = now;
    m_frame = 0;
}

FramePacer::Clock::time_point FramePacer::due(std::int64_t frame) const {
    return m_start + std::chrono::nanoseconds(1s) * frame / m_framesPerSecond;
}

std::chrono::milliseconds FramePacer::untilNext(Clock::time_point now) {
    const std::int64_t passed = (now - m_start) * m_framesPerSecond / std::chrono::nanoseconds(1s);
    m_frame = std::max(m_frame, passed) + 1;
    // A timer may be up to half a millisecond early, but its next wait makes up for that.
    return std::max(0ms, std::chrono::round<std::chrono::milliseconds>(due(m_frame) - now));
}

} // namespace platform
