#pragma once

#include "Platform/Display/DisplayQueue.h"
#include "Platform/Display/DisplayTarget.h"
#include "Platform/Display/RealtimeScope.h"

#include <poll.h>

#include <functional>
#include <thread>
#include <utility>
#include <vector>

/// Remembers what it is to show.
class RecordingTarget : public platform::DisplayTarget {
public:
    using DisplayTarget::send;

    explicit RecordingTarget(platform::DisplayQueue& queue) : DisplayTarget(queue) {}

    void show(std::size_t source, float value) override {
        shown.emplace_back(source, value);
        if (whenShown)
            whenShown();
    }

    std::vector<std::pair<std::size_t, float>> shown;
    std::function<void()> whenShown;
};

inline bool isSignalled(const platform::DisplayQueue& queue) {
    pollfd state{.fd = queue.wakeUp().descriptor(), .events = POLLIN, .revents = 0};
    return poll(&state, 1, 0) == 1;
}

inline void onAudioThread(const std::function<void()>& work) {
    std::thread([&work] {
        const platform::RealtimeScope scope;
        work();
    }).join();
}
