#include "benchmarks/Parameters/Samples.h"

#include <algorithm>

namespace benchmark {

double median(const Samples& samples, const std::string& name) {
    auto values = samples.at(name);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void CallTimes::report(Samples& samples, const std::string& name) {
    std::sort(m_times.begin(), m_times.end());
    samples[name + " 50"].push_back(m_times[m_times.size() / 2]);
    samples[name + " 99"].push_back(m_times[m_times.size() * 99 / 100]);
}

} // namespace benchmark
