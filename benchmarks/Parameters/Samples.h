#pragma once

#include <chrono>
#include <ctime>
#include <map>
#include <string>
#include <vector>

namespace benchmark {

constexpr int rounds = 11;

/// What a figure came to in each round.
using Samples = std::map<std::string, std::vector<double>>;

double median(const Samples& samples, const std::string& name);

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

    /// As "`name` 50" and "`name` 99": the percentiles.
    void report(Samples& samples, const std::string& name);

private:
    std::vector<double> m_times;
};

} // namespace benchmark
