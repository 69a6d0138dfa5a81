// window-benchmark APPLICATION PLAIN SHADERS [STARTS [SECONDS]]: see README.md.
#include "benchmarks/Process.h"
#include "benchmarks/Screen.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

using namespace benchmark;
using namespace std::chrono_literals;

namespace {

constexpr int width = 400;
constexpr int height = 572;
constexpr int headerHeight = 300;
constexpr auto patience = 20s;
constexpr auto settling = 1s;

int brightness(std::uint32_t pixel) {
    return static_cast<int>((pixel >> 16 & 0xff) + (pixel >> 8 & 0xff) + (pixel & 0xff));
}

long brightPixels(const Picture& picture, int top, int bottom, int threshold) {
    long count = 0;
    for (int y = top; y < bottom; ++y)
        for (int x = 0; x < width; ++x)
            count += brightness(picture.at(x, y)) > threshold ? 1 : 0;
    return count;
}

/// The strands' glow gives the middle rows hundreds of colours; an empty header has one.
bool hasWaveform(const Picture& picture) {
    std::set<std::uint32_t> colors;
    for (int y = headerHeight / 2 - 2; y < headerHeight / 2 + 2; ++y)
        for (int x = 0; x < width; ++x)
            colors.insert(picture.at(x, y));
    return colors.size() > 200;
}

/// The waveform, the white title on it, the text and the buttons.
bool isWholeApplication(const Picture& picture) {
    return hasWaveform(picture) && brightPixels(picture, 125, 175, 740) > 100 &&
           brightPixels(picture, 320, 480, 400) > 500 && brightPixels(picture, 530, 560, 400) > 100;
}

struct Program {
    const char* name;
    std::vector<std::string> command;
    std::function<bool(const Picture&)> isComplete;
    std::vector<double> start{};
    std::vector<double> memory{};
    std::vector<double> ownMemory{};
    std::vector<double> frameCost{};
    std::vector<double> frameRate{};
};

double milliseconds(std::chrono::nanoseconds time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

double median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const auto middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

/// Starts the program and returns it with its window on the screen and with the focus.
std::unique_ptr<Process> show(Screen& screen, const Program& program, double& time) {
    if (!screen.waitUntilGone(width, height, patience))
        throw std::runtime_error("a window stays on the screen");
    std::this_thread::sleep_for(100ms); // for the window manager, which tidies up after it
    auto process = std::make_unique<Process>(program.command);
    const auto complete = screen.waitFor(width, height, program.isComplete, patience);
    if (!complete)
        throw std::runtime_error(std::string("the window is never complete: ") + program.name);
    time = milliseconds(*complete - process->started());
    if (!screen.waitForFocus(width, height, patience))
        throw std::runtime_error(std::string("the window never gets the focus: ") + program.name);
    return process;
}

void measureStart(Screen& screen, Program& program) {
    double time = 0;
    const auto process = show(screen, program, time);
    program.start.push_back(time);
    std::this_thread::sleep_for(500ms);
    program.memory.push_back(static_cast<double>(process->peakMemory()) / 1024);
    program.ownMemory.push_back(static_cast<double>(process->ownMemory()) / 1024);
}

void measureFrames(Screen& screen, Program& program, std::chrono::milliseconds duration) {
    double time = 0;
    const auto process = show(screen, program, time);
    std::this_thread::sleep_for(settling);
    const auto before = process->processorTime();
    const auto begin = Clock::now();
    const double pixels = static_cast<double>(screen.pixelsDrawn(headerHeight, duration));
    const auto spent = process->processorTime() - before;
    const double frames = pixels / (width * headerHeight);
    if (frames < 1)
        throw std::runtime_error(std::string("no frame was drawn: ") + program.name);
    program.frameCost.push_back(milliseconds(spent) / frames);
    program.frameRate.push_back(frames * 1000 / milliseconds(Clock::now() - begin));
}

void measureIdle(Screen& screen, const Program& program) {
    constexpr auto duration = 10s;
    double time = 0;
    const auto process = show(screen, program, time);
    if (!screen.takeFocus())
        throw std::runtime_error("the other window does not get the focus");
    std::this_thread::sleep_for(settling);
    const auto spentBefore = process->processorTime();
    const long wakeUpsBefore = process->wakeUps();
    const long pixels = screen.pixelsDrawn(height, duration);
    const auto spent = process->processorTime() - spentBefore;
    const long wakeUps = process->wakeUps() - wakeUpsBefore;
    screen.releaseFocus();
    std::printf(
        "\n%s behind another window for %lld s: %.3f ms of processor, %ld wake-ups, %ld pixels drawn\n",
        program.name, static_cast<long long>(duration.count()), milliseconds(spent), wakeUps, pixels);
}

double lowest(const std::vector<double>& values) {
    return *std::min_element(values.begin(), values.end());
}

void printRow(const char* title, const std::vector<double>& application, const std::vector<double>& plain,
              const char* aim) {
    std::printf("%-32s %7.2f (%6.2f) %7.2f (%6.2f) %6.2f  %-7s %4zu\n", title, median(application),
                lowest(application), median(plain), lowest(plain), median(application) / median(plain), aim,
                application.size());
}

void printTable(const Program& application, const Program& plain) {
    std::printf("%-32s %16s %16s %6s  %-7s %4s\n", "median (lowest)", application.name, plain.name, "ratio",
                "aim", "runs");
    printRow("start to complete window, ms", application.start, plain.start, "<= 1.30");
    printRow("peak memory, MiB", application.memory, plain.memory, "<= 1.32");
    printRow("memory of its own, MiB", application.ownMemory, plain.ownMemory, "");
    printRow("processor time a frame, ms", application.frameCost, plain.frameCost, "<= 1.25");
    printRow("frames a second", application.frameRate, plain.frameRate, "");
}

void run(const std::vector<std::string>& arguments) {
    const int starts = arguments.size() > 3 ? std::stoi(arguments[3]) : 21;
    const std::chrono::seconds duration(arguments.size() > 4 ? std::stoi(arguments[4]) : 3);
    constexpr int frameRuns = 7;
    const std::string shader = arguments[2] + "/audioWaveform";
    std::array programs{
        Program{"application", {arguments[0]}, isWholeApplication},
        Program{"plain", {arguments[1], shader + ".vert", shader + ".frag"}, hasWaveform},
    };
    Screen screen;
    double warmUp = 0; // the first start fills the caches that a used machine has filled
    for (const auto& program : programs)
        show(screen, program, warmUp);
    for (int i = 0; i < starts; ++i)
        for (auto& program : programs)
            measureStart(screen, program);
    for (int i = 0; i < frameRuns; ++i)
        for (auto& program : programs)
            measureFrames(screen, program, duration);
    printTable(programs[0], programs[1]);
    measureIdle(screen, programs[0]);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fputs("usage: window-benchmark APPLICATION PLAIN SHADERS [STARTS [SECONDS]]\n", stderr);
        return 2;
    }
    try {
        run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "window-benchmark: %s\n", error.what());
        return 1;
    }
}
