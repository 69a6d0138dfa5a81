#include "benchmarks/Parameters/Report.h"

#include <cstdio>
#include <fstream>
#include <unistd.h>

namespace benchmark {

namespace {

void printChanges(const Samples& samples, const std::vector<std::string>& references, const char* title,
                  const std::string& way) {
    std::printf("%-36s   ns each  million/s      50 %%      99 %%", title);
    for (const auto& reference : references)
        std::printf(" %10s", ("to " + reference).c_str());
    std::printf("\n");
    std::vector<std::string> roads{"observer", "ui"};
    roads.insert(roads.end(), references.begin(), references.end());
    for (const auto& road : roads) {
        const std::string name = road + way;
        std::printf("  %-34s %9.1f %10.2f %9.0f %9.0f", road.c_str(), median(samples, name),
                    1e3 / median(samples, name), median(samples, name + " 50"),
                    median(samples, name + " 99"));
        for (const auto& reference : references)
            std::printf(" %10.1f", median(samples, reference + way) / median(samples, name));
        std::printf("\n");
    }
}

void printShowing(const Samples& samples, const std::vector<std::string>& references, int shown) {
    const double own = median(samples, "show");
    std::printf("to show %d changed parameters, ms: %.3f (aim 1)\n", shown, own);
    for (const auto& reference : references)
        if (const auto found = samples.find(reference + " show"); found != samples.end())
            std::printf("  %s, ms: %.3f, %.1f times as long\n", reference.c_str(),
                        median(samples, found->first), median(samples, found->first) / own);
    std::printf("  with a widget each, ms: %.3f; the widgets' update alone: %.3f\n", median(samples, "paint"),
                median(samples, "update"));
}

} // namespace

void print(const Samples& samples, const std::vector<std::string>& references, int shown, int built) {
    std::printf("median of %d rounds; aims: 10 million/s, 99 %% within 100 ns, 20 times a queued call\n",
                rounds);
    printChanges(samples, references, "shown after each block of 1024", " afterwards");
    printChanges(samples, references, "shown while a block of 1024 comes", " meanwhile");
    printChanges(samples, references, "shown in a flood", " flood");
    std::printf("the clock alone, in the percentiles, ns: %.0f, %.0f\n", median(samples, "clock 50"),
                median(samples, "clock 99"));
    std::printf("a line of memory from one processor to the other, ns: %.0f\n", median(samples, "line"));
    printShowing(samples, references, shown);
    std::printf("to build %d parameters with their tree, ms: %.1f\n", built, median(samples, "build"));
    for (const char* const place : {"tree", "settings"}) {
        std::printf("look-up of the last of 10, 100, 1000, 10000 in the %s, ns:", place);
        for (const char* const count : {"10", "100", "1000", "10000"})
            std::printf(" %.1f", median(samples, std::string(place) + ' ' + count));
        std::printf("\n");
    }
}

double residentMebibytes() {
    std::ifstream file("/proc/self/statm");
    double total = 0;
    double resident = 0;
    file >> total >> resident;
    return resident * double(sysconf(_SC_PAGESIZE)) / (1024 * 1024);
}

} // namespace benchmark
