// What a change of a parameter costs the thread that renders audio, and showing it the main thread.
#include "Platform/Core/FatalError.h"
#include "benchmarks/Parameters/Lamps.h"
#include "benchmarks/Parameters/Peer.h"
#include "benchmarks/Parameters/Report.h"
#include "benchmarks/Parameters/Roads.h"

#include <QApplication>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <functional>
#include <optional>
#include <random>
#include <thread>

using benchmark::LampWindow;
using benchmark::Model;
using benchmark::Samples;
using chorale::ParameterEditor;
using chorale::ParameterEditorState;

namespace {

constexpr int shown = 1'000;
constexpr int many = 10'000;
constexpr int lookUps = 100'000;

void drain() {
    platform::DisplayQueue::shared().drain();
}

/// Milliseconds of the main thread for a thousand changes that wait, until they are shown.
template <typename Show>
double timeToShow(const Model& model, Show show) {
    const float value = 1 - model.parameters.first()->value();
    {
        const platform::RealtimeScope scope;
        for (const auto& parameter : model.parameters)
            parameter->setValue(value, ParameterEditor::parameterObserver, ParameterEditorState::change);
    }
    return benchmark::processorTime(show) * 1e3;
}

/// Milliseconds to build many parameters with their tree; not to take them down again.
double timeToBuild() {
    std::optional<Model> model;
    return benchmark::processorTime([&] { model.emplace(many); }) * 1e3;
}

/// Nanoseconds for the last of the model's parameters.
void lookUp(Samples& samples, const Model& model) {
    const std::string count = std::to_string(model.parameters.size());
    const std::uint64_t address = model.parameters.last()->address();
    const auto& tree = model.unit->parameterTree();
    qsizetype found = 0;
    const double inTree = benchmark::processorTime([&] {
        for (int index = 0; index < lookUps; ++index)
            found += tree->parameterWithAddress(address) ? 1 : 0;
    });
    if (found != lookUps)
        platform::fatalError("The tree does not find its last parameter");
    // To the value that it has: the look-up and the audio unit, without a change.
    const float value = model.parameters.last()->value();
    const double inSettings = benchmark::processorTime([&] {
        for (int index = 0; index < lookUps; ++index)
            model.settings->setValue(value, address, ParameterEditor::parameterObserver);
    });
    samples["tree " + count].push_back(inTree / lookUps * 1e9);
    samples["settings " + count].push_back(inSettings / lookUps * 1e9);
}

void readClock(Samples& samples) {
    benchmark::CallTimes times(lookUps);
    for (int index = 0; index < lookUps; ++index)
        times.add([] {});
    times.report(samples, "clock");
}

/// Nanoseconds for a word of memory to get from one processor to the other: what a thread pays for each line
/// that the other has touched meanwhile.
void passALine(Samples& samples) {
    constexpr int passes = 20'000;
    std::atomic<int> turn = 0;
    const auto play = [&turn](int first) {
        for (int own = first; own < passes; own += 2) {
            while (turn.load(std::memory_order_acquire) != own) {
            }
            turn.store(own + 1, std::memory_order_release);
        }
    };
    const auto start = std::chrono::steady_clock::now();
    std::thread other(play, 1);
    play(0);
    other.join();
    const std::chrono::duration<double, std::nano> time = std::chrono::steady_clock::now() - start;
    samples["line"].push_back(time.count() / passes);
}

void measurePeer(Samples& samples, benchmark::Peer& peer) {
    benchmark::measureEachWay(samples, peer.name(), peer);
    peer.changeMany();
    samples[peer.name() + " show"].push_back(benchmark::processorTime([&] { peer.showMany(); }) * 1e3);
}

/// One after the other in an order that changes, so that what else happens on the machine meets all alike.
void measure(std::vector<std::function<void()>> measurements) {
    std::mt19937 random(std::random_device{}());
    for (int round = 0; round < benchmark::rounds; ++round) {
        std::shuffle(measurements.begin(), measurements.end(), random);
        for (const auto& measurement : measurements)
            measurement();
    }
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const Model warmUp(1);
    const double before = benchmark::residentMebibytes();
    const Model large(many);
    std::printf("resident for %d parameters with their tree, MiB: %.1f before, %.1f after\n", many, before,
                benchmark::residentMebibytes());

    const Model ten(10);
    const Model hundred(100);
    const Model thousand(shown);
    const Model watched(shown);
    const LampWindow window(watched);
    benchmark::OwnRoad observer(*ten.parameters.first(), ParameterEditor::parameterObserver);
    benchmark::OwnRoad ui(*ten.parameters.first(), ParameterEditor::ui);
    benchmark::QueuedRoad queued;
    const auto peers = benchmark::makePeers(shown);

    Samples samples;
    std::vector<std::function<void()>> measurements{
        [&] { measureEachWay(samples, "observer", observer); },
        [&] { measureEachWay(samples, "ui", ui); },
        [&] { measureEachWay(samples, "queued", queued); },
        [&] { readClock(samples); },
        [&] { passALine(samples); },
        [&] { samples["show"].push_back(timeToShow(thousand, drain)); },
        [&] { samples["paint"].push_back(timeToShow(watched, [&] { window.paintAfter(drain); })); },
        [&] {
            samples["update"].push_back(
                benchmark::processorTime([&] { window.paintAfter([&] { window.updateAll(); }); }) * 1e3);
        },
        [&] { samples["build"].push_back(timeToBuild()); },
        [&] {
            for (const Model* const model : {&ten, &hundred, &thousand, &large})
                lookUp(samples, *model);
        },
    };
    std::vector<std::string> references{"queued"};
    for (const auto& peer : peers) {
        measurements.emplace_back([&] { measurePeer(samples, *peer); });
        references.push_back(peer->name());
    }
    measure(std::move(measurements));
    benchmark::print(samples, references, shown, many);
}
