#pragma once

#include "benchmarks/Parameters/Samples.h"

#include <string>
#include <vector>

namespace benchmark {

/// Prints the medians. `references` are the roads, "queued" and the peers, that ours are compared with.
void print(const Samples& samples, const std::vector<std::string>& references, int shown, int built);

double residentMebibytes();

} // namespace benchmark
