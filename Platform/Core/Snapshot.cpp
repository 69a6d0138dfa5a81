#include "Platform/Core/Snapshot.h"

namespace platform {

namespace {

// In the static block: the first use on a thread must not allocate, even in a library that was loaded late.
[[gnu::tls_model("initial-exec")]] thread_local const SnapshotReading* innermost = nullptr;

} // namespace

SnapshotReading::SnapshotReading(const std::atomic<unsigned>& phase, Counts& counts)
    : m_counts(counts), m_phase(phase.load()), m_outer(innermost) {
    m_counts[m_phase].fetch_add(1);
    innermost = this;
}

SnapshotReading::~SnapshotReading() {
    innermost = m_outer;
    m_counts[m_phase].fetch_sub(1);
}

bool SnapshotReading::isInside(const Counts& counts) {
    for (const auto* reading = innermost; reading != nullptr; reading = reading->m_outer)
        if (&reading->m_counts == &counts)
            return true;
    return false;
}

} // namespace platform
