// What a change of a parameter costs the thread that renders audio, and showing it the main thread.
#include "Chorale/ParameterSettings.h"
#include "Platform/AudioUnits/DisplayQueue.h"
#include "Platform/AudioUnits/RealtimeScope.h"
#include "Platform/Core/FatalError.h"
#include "Platform/Core/MainThreadShared.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

using chorale::AudioParameter;
using chorale::ParameterEditor;
using chorale::ParameterEditorState;
using platform::DisplayQueue;

namespace {

constexpr int rounds = 11;
constexpr int blocks = 40;
constexpr int changesInBlock = 1'024;
constexpr int shown = 1'000;
constexpr int many = 10'000;
constexpr int lookUps = 100'000;

/// What a figure came to in each round.
using Samples = std::map<std::string, std::vector<double>>;

class QuietUnit : public chorale::ChoraleAudioUnit {
public:
    void applyParameterValue(platform::AUParameterAddress, float) override {}
};

/// Parameters with all that a plug-in ties to them.
struct Model {
    explicit Model(int count) {
        for (int index = 0; index < count; ++index)
            parameters.append(platform::makeMainThreadShared<AudioParameter>(
                addressOf(index), QStringLiteral("parameter%1").arg(index),
                QStringLiteral("Parameter %1").arg(index), platform::AudioUnitParameterUnit::generic,
                chorale::ClosedRange<float>(0, 1), 0.F));
        settings->setupParameters(parameters);
        settings->configureAudioUnit(unit);
        settings->setupParameterTreeListeners();
    }

    // Spread as hosts' addresses are, not in a row.
    static std::uint64_t addressOf(int index) { return std::uint64_t(index) * 0x9E37'79B9'7F4A'7C15U; }

    std::shared_ptr<QuietUnit> unit = std::make_shared<QuietUnit>();
    std::shared_ptr<chorale::ParameterSettings> settings = std::make_shared<chorale::ParameterSettings>();
    QList<std::shared_ptr<AudioParameter>> parameters;
};

/// Of two values in turn, so that none is the one before.
float alternating(int index) {
    return index % 2 == 0 ? 0.25F : 0.75F;
}

/// Seconds that the processor spent on `work` in this thread; what else runs on the machine is not in them.
template <typename Work>
double processorTime(Work work) {
    const auto now = [] {
        timespec time{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
        return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
    };
    const double start = now();
    work();
    return now() - start;
}

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

struct OwnQueue {
    static void drain() { DisplayQueue::shared().drain(); }

    static bool isEmpty() { return DisplayQueue::shared().isEmpty(); }
};

/// An object that other threads send numbers by queued calls.
struct Receiver : QObject {
    static void drain() { QCoreApplication::processEvents(); }

    /// Whether the last of a block has come; once.
    bool isEmpty() { return value == changesInBlock - 1 && value.exchange(0) != 0; }

    std::atomic<float> value = 0;
};

/// Times single calls, in nanoseconds, the clock's own cost included.
class CallTimes {
public:
    explicit CallTimes(std::size_t calls) { m_times.reserve(calls); }

    template <typename Call>
    void add(Call call) {
        const auto start = std::chrono::steady_clock::now();
        call();
        m_times.push_back(
            std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count());
    }

    void report(Samples& samples, const std::string& name) {
        std::sort(m_times.begin(), m_times.end());
        samples[name + " 50"].push_back(m_times[m_times.size() / 2]);
        samples[name + " 99"].push_back(m_times[m_times.size() * 99 / 100]);
    }

private:
    std::vector<double> m_times;
};

/// When the main thread shows changes: while ever more come, while a block of them comes, or after each
/// block. Except in a flood, a block waits for the one before, so that the queue is never full.
enum class Shown { inFlood, meanwhile, afterwards };

/// Nanoseconds of the processor for each change, then the times of single calls.
template <typename Change, typename Queue>
void measureChanges(Samples& samples, const std::string& name, Change change, Queue& queue, Shown when) {
    const auto inBlocks = [&](auto changeBlock) {
        std::atomic<bool> mayShow = true;
        const auto render = [&] {
            for (int block = 0; block < blocks; ++block) {
                mayShow = when != Shown::afterwards;
                changeBlock();
                mayShow = true;
                while (when != Shown::inFlood && !queue.isEmpty()) {
                }
            }
        };
        renderAudio(render, [&] {
            if (mayShow)
                queue.drain();
        });
    };
    double seconds = 0;
    inBlocks([&] {
        seconds += processorTime([&] {
            for (int index = 0; index < changesInBlock; ++index)
                change(index);
        });
    });
    samples[name].push_back(seconds / (blocks * changesInBlock) * 1e9);
    CallTimes times(std::size_t(blocks) * changesInBlock);
    inBlocks([&] {
        for (int index = 0; index < changesInBlock; ++index)
            times.add([&] { change(index); });
    });
    times.report(samples, name);
}

/// A small widget that paints its parameter's value.
class Lamp : public QWidget {
public:
    Lamp(const AudioParameter& parameter, QWidget* parent) : QWidget(parent), m_parameter(parameter) {
        connect(&parameter, &AudioParameter::valueChanged, this, qOverload<>(&QWidget::update));
    }

    static inline int painted = 0;

protected:
    void paintEvent(QPaintEvent*) override {
        ++painted;
        QPainter(this).fillRect(rect(), QColor::fromRgbF(m_parameter.value(), 0.5F, 0.5F));
    }

private:
    const AudioParameter& m_parameter;
};

class LampWindow : public QWidget {
public:
    explicit LampWindow(const Model& model) {
        constexpr int columns = 40;
        constexpr int side = 16;
        for (int index = 0; index < shown; ++index)
            (new Lamp(*model.parameters[index], this))
                ->setGeometry(index % columns * side, index / columns * side, side, side);
        resize(columns * side, shown / columns * side);
        show();
        while (Lamp::painted < shown)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    /// What Qt alone does for it.
    void updateAll() const {
        for (auto* const lamp : findChildren<QWidget*>())
            lamp->update();
    }
};

/// Milliseconds of the main thread for a thousand changes that wait, until they are shown.
template <typename Show>
double timeToShow(const Model& model, Show show) {
    const float value = 1 - model.parameters.first()->value();
    {
        const platform::RealtimeScope scope;
        for (const auto& parameter : model.parameters)
            parameter->setValue(value, ParameterEditor::parameterObserver, ParameterEditorState::change);
    }
    return processorTime(show) * 1e3;
}

template <typename Cause>
void paintLamps(Cause cause) {
    Lamp::painted = 0;
    cause();
    while (Lamp::painted < shown)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

/// Milliseconds to build many parameters with their tree; not to take them down again.
double timeToBuild() {
    std::optional<Model> model;
    return processorTime([&] { model.emplace(many); }) * 1e3;
}

/// Nanoseconds for the last of the model's parameters.
void lookUp(Samples& samples, const Model& model) {
    const qsizetype count = model.parameters.size();
    const std::uint64_t address = model.parameters.last()->address();
    const auto& tree = model.unit->parameterTree();
    qsizetype found = 0;
    const double inTree = processorTime([&] {
        for (int index = 0; index < lookUps; ++index)
            found += tree->parameterWithAddress(address) ? 1 : 0;
    });
    if (found != lookUps)
        platform::fatalError("The tree does not find its last parameter");
    // To the value that it has: the look-up and the audio unit, without a change.
    const float value = model.parameters.last()->value();
    const double inSettings = processorTime([&] {
        for (int index = 0; index < lookUps; ++index)
            model.settings->setValue(value, address, ParameterEditor::parameterObserver);
    });
    samples["tree " + std::to_string(count)].push_back(inTree / lookUps * 1e9);
    samples["settings " + std::to_string(count)].push_back(inSettings / lookUps * 1e9);
}

void readClock(Samples& samples) {
    CallTimes times(lookUps);
    for (int index = 0; index < lookUps; ++index)
        times.add([] {});
    times.report(samples, "clock");
}

double residentMebibytes() {
    std::ifstream file("/proc/self/statm");
    double total = 0;
    double resident = 0;
    file >> total >> resident;
    return resident * double(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

double median(Samples& samples, const std::string& name) {
    auto& values = samples.at(name);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void printChanges(Samples& samples, const char* title, const std::string& way) {
    std::printf("%-36s   ns each  million/s      50 %%      99 %%  to queued\n", title);
    const double queued = median(samples, "queued" + way);
    for (const char* const source : {"observer", "ui", "queued"}) {
        const std::string name = source + way;
        std::printf("  %-34s %9.1f %10.2f %9.0f %9.0f %10.1f\n", source, median(samples, name),
                    1e3 / median(samples, name), median(samples, name + " 50"), median(samples, name + " 99"),
                    queued / median(samples, name));
    }
}

void print(Samples& samples) {
    std::printf("median of %d rounds; aims: 10 million/s, 99 %% within 100 ns, 20 times a queued call\n",
                rounds);
    printChanges(samples, "shown after each block of 1024", " afterwards");
    printChanges(samples, "shown while a block of 1024 comes", " meanwhile");
    printChanges(samples, "shown in a flood", " flood");
    std::printf("the clock alone, in the percentiles, ns: %.0f, %.0f\n", median(samples, "clock 50"),
                median(samples, "clock 99"));
    std::printf("to show %d changed parameters, ms: %.3f (aim 1)\n", shown, median(samples, "show"));
    std::printf("  with a widget each, ms: %.3f; the widgets' update alone: %.3f\n", median(samples, "paint"),
                median(samples, "update"));
    std::printf("to build %d parameters with their tree, ms: %.1f\n", many, median(samples, "build"));
    for (const char* const place : {"tree", "settings"}) {
        std::printf("look-up of the last of 10, 100, 1000, 10000 in the %s, ns:", place);
        for (const char* const count : {"10", "100", "1000", "10000"})
            std::printf(" %.1f", median(samples, std::string(place) + ' ' + count));
        std::printf("\n");
    }
}

/// One after the other in an order that changes, so that what else happens on the machine meets all alike.
void measure(std::vector<std::function<void()>> measurements) {
    std::mt19937 random(std::random_device{}());
    for (int round = 0; round < rounds; ++round) {
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
    const double before = residentMebibytes();
    const Model large(many);
    const double after = residentMebibytes();
    std::printf("resident for %d parameters with their tree, MiB: %.1f before, %.1f after\n", many, before,
                after);

    const Model ten(10);
    const Model hundred(100);
    const Model thousand(shown);
    const Model watched(shown);
    const LampWindow window(watched);
    AudioParameter& parameter = *ten.parameters.first();
    const auto changeAs = [&](ParameterEditor source) {
        return [&parameter, source](int index) {
            parameter.setValue(alternating(index), source, ParameterEditorState::change);
        };
    };
    const auto observer = changeAs(ParameterEditor::parameterObserver);
    const auto ui = changeAs(ParameterEditor::ui);
    Receiver receiver;
    const auto queued = [&](int index) {
        QMetaObject::invokeMethod(
            &receiver,
            [&receiver, value = float(index)] { receiver.value.store(value, std::memory_order_relaxed); },
            Qt::QueuedConnection);
    };

    OwnQueue ownQueue;
    Samples samples;
    const auto changeEachWay = [&](const std::string& name, auto change, auto& queue) {
        measureChanges(samples, name + " afterwards", change, queue, Shown::afterwards);
        measureChanges(samples, name + " meanwhile", change, queue, Shown::meanwhile);
        measureChanges(samples, name + " flood", change, queue, Shown::inFlood);
    };
    measure({
        [&] { changeEachWay("observer", observer, ownQueue); },
        [&] { changeEachWay("ui", ui, ownQueue); },
        [&] { changeEachWay("queued", queued, receiver); },
        [&] { readClock(samples); },
        [&] { samples["show"].push_back(timeToShow(thousand, OwnQueue::drain)); },
        [&] { samples["paint"].push_back(timeToShow(watched, [] { paintLamps(OwnQueue::drain); })); },
        [&] {
            samples["update"].push_back(processorTime([&] { paintLamps([&] { window.updateAll(); }); }) *
                                        1e3);
        },
        [&] { samples["build"].push_back(timeToBuild()); },
        [&] {
            for (const Model* const model : {&ten, &hundred, &thousand, &large})
                lookUp(samples, *model);
        },
    });
    print(samples);
}
