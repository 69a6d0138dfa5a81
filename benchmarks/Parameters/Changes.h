#pragma once

#include "Platform/Display/RealtimeScope.h"
#include "benchmarks/Parameters/Samples.h"

#include <atomic>
#include <string>
#include <thread>

namespace benchmark {

constexpr int blocks = 40;
constexpr int changesInBlock = 1'024;

/// When the main thread shows changes: while ever more come, while a block of them comes, or after each
/// block. Except in a flood, a block waits for the one before, so that the queue is never full.
enum class Shown { inFlood, meanwhile, afterwards };

/// Runs `work` as a thread that renders audio would, while the main thread does nothing but `drain`.
template <typename Work, typename Drain>
void renderAudio(Work work, Drain drain) {
    std::atomic<bool> isDone = false;
    std::thread audio([&] {
        const platform::RealtimeScope scope;
        work();
        isDone = true;
    });
    while (!isDone)
        drain();
    audio.join();
    drain();
}

/// Nanoseconds of the processor for each change, then the times of single calls. A road changes a parameter
/// (`change(index)`, the index in the block), shows what has come (`drain`) and knows whether all has
/// (`isEmpty`).
template <typename Road>
void measureChanges(Samples& samples, const std::string& name, Road& road, Shown when) {
    const auto inBlocks = [&](auto changeBlock) {
        std::atomic<bool> mayShow = true;
        const auto render = [&] {
            for (int block = 0; block < blocks; ++block) {
                mayShow = when != Shown::afterwards;
                changeBlock();
                mayShow = true;
                while (when != Shown::inFlood && !road.isEmpty()) {
                }
            }
        };
        renderAudio(render, [&] {
            if (mayShow)
                road.drain();
        });
    };
    double seconds = 0;
    inBlocks([&] {
        seconds += processorTime([&] {
            for (int index = 0; index < changesInBlock; ++index)
                road.change(index);
        });
    });
    samples[name].push_back(seconds / (blocks * changesInBlock) * 1e9);
    CallTimes times(std::size_t(blocks) * changesInBlock);
    inBlocks([&] {
        for (int index = 0; index < changesInBlock; ++index)
            times.add([&] { road.change(index); });
    });
    times.report(samples, name);
}

template <typename Road>
void measureEachWay(Samples& samples, const std::string& name, Road& road) {
    measureChanges(samples, name + " afterwards", road, Shown::afterwards);
    measureChanges(samples, name + " meanwhile", road, Shown::meanwhile);
    measureChanges(samples, name + " flood", road, Shown::inFlood);
}

} // namespace benchmark
