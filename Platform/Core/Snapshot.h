#pragma once

#include <array>
#include <atomic>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

namespace platform {

/// One thread's stay in a snapshot. The counts tell a writer which phase still has readers.
class SnapshotReading {
public:
    using Counts = std::array<std::atomic<int>, 2>;

    SnapshotReading(const std::atomic<unsigned>& phase, Counts& counts);
    ~SnapshotReading();
    SnapshotReading(const SnapshotReading&) = delete;
    SnapshotReading& operator=(const SnapshotReading&) = delete;

    /// True if this thread is reading the snapshot of these counts.
    static bool isInside(const Counts& counts);

private:
    Counts& m_counts;
    const unsigned m_phase;
    const SnapshotReading* m_outer;
};

/// A value that the main thread replaces while other threads read it. A reader takes no lock, waits for
/// nobody and allocates nothing, so it may render audio.
template <typename T>
class Snapshot {
public:
    Snapshot() : m_current(new T()) {}

    ~Snapshot() { delete m_current.load(); }

    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;

    /// A thread's stay. What `value` gives during it remains as it is until its end. Any thread; may be
    /// nested.
    class Reading {
    public:
        explicit Reading(const Snapshot& snapshot)
            : m_snapshot(snapshot), m_reading(snapshot.m_phase, snapshot.m_readers) {}

        /// The value as it is now: the reader itself may have replaced it.
        const T& value() const { return *m_snapshot.m_current.load(); }

    private:
        const Snapshot& m_snapshot;
        const SnapshotReading m_reading;
    };

    /// Calls `use` with the value, which stays as it is until `use` returns. Any thread; may be nested.
    template <typename Use>
    decltype(auto) read(Use use) const {
        const Reading reading(*this);
        return use(reading.value());
    }

    /// Returns when nobody reads the old value any more and it is gone. From inside `read` it returns at
    /// once, and the old value goes with the next replacement. One thread at a time.
    void replace(T value) {
        m_old.emplace_back(m_current.exchange(new T(std::move(value))));
        if (SnapshotReading::isInside(m_readers))
            return;
        waitForReaders();
        m_old.clear();
    }

    /// Replaces the value with a copy that `change` has changed.
    template <typename Change>
    void edit(Change change) {
        T copy = *m_current.load();
        change(copy);
        replace(std::move(copy));
    }

private:
    // Turning the phase sends new readers to the other count, so that each count falls to zero.
    void waitForReaders() const {
        for (int turn = 0; turn < 2; ++turn) {
            const unsigned phase = m_phase.load();
            m_phase.store(1 - phase);
            while (m_readers[phase].load() != 0)
                std::this_thread::yield();
        }
    }

    std::atomic<T*> m_current;                   // any thread
    mutable std::atomic<unsigned> m_phase = 0;   // any thread; changed by the writer
    mutable SnapshotReading::Counts m_readers{}; // any thread
    std::vector<std::unique_ptr<T>> m_old;       // the writer
};

} // namespace platform
