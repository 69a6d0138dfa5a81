#pragma once

#include "Platform/Core/BoundedQueue.h"
#include "Platform/Core/CacheLine.h"
#include "Platform/Core/WakeUp.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace platform {

class DisplayTarget;

/// The way of changed values to the main thread: a queue of fixed size, and behind it a list of the targets
/// that found it full. Whoever sends never allocates, locks or waits.
class DisplayQueue {
public:
    /// The one that the main thread's loop empties. Lives as long as the process.
    static DisplayQueue& shared();

    /// `capacity` is a power of two, at least 2.
    explicit DisplayQueue(std::size_t capacity);
    ~DisplayQueue();
    DisplayQueue(const DisplayQueue&) = delete;
    DisplayQueue& operator=(const DisplayQueue&) = delete;

    /// Shows, in order, what has been sent up to now, then what found the queue full. What is sent meanwhile
    /// waits for the next call. Then it lets go of the targets that nobody else owns. Main thread.
    void drain();

    /// The same once `wakeUp` is signalled. It takes the signal back, whoever it came from. Main thread.
    void answer();

    /// Lets go of all targets of which nothing waits. Until then a target of which something was shown stays
    /// alive, so that whoever sends need not count for every value. Main thread.
    void letGo();

    /// Whether something waits. A thread that renders audio leaves no other sign.
    bool isEmpty() const;

    /// Signalled by what is sent outside a `RealtimeScope`, once until the next `drain`.
    const WakeUp& wakeUp() const { return m_wakeUp; }

    /// How many targets there are. Any thread.
    int targets() const { return m_targets.load(std::memory_order_relaxed); }

private:
    friend class DisplayTarget;

    // Counts what has been sent; an older value never follows a newer one of its target and source.
    using Number = std::uint64_t;

    struct Update {
        DisplayTarget* target = nullptr; // held, see DisplayTarget::m_hold
        Number number = 0;
        float value = 0;
        std::uint32_t source = 0;
    };

    // Odd, so that none is 0.
    static Number number(std::size_t place, Number kept) { return 2 * (place + kept) + 1; }

    Number latestNumber() const { return number(m_updates.pushed(), m_kept.load()); }

    // For a value that has no place.
    Number newNumber() { return number(m_updates.pushed(), m_kept.fetch_add(1)); }

    void list(DisplayTarget& target);
    void wake();
    void drain(bool isWoken);
    bool showUntil(std::size_t end);
    void showListed();
    void noteHeld(DisplayTarget& target);
    void takeHolds(bool onlyOrphans);
    void forgetTaken();

    std::atomic<int> m_targets = 0; // any thread; outlives the updates
    BoundedQueue<Update> m_updates;
    alignas(cacheLine) std::atomic<Number> m_kept = 0; // any thread; how many values found the queue full
    std::atomic<DisplayTarget*> m_listed = nullptr;    // any thread; the one listed last
    std::atomic<bool> m_isWoken = false;               // any thread
    WakeUp m_wakeUp;
    alignas(cacheLine) DisplayTarget* m_held = nullptr;  // main thread; those whose holds can be taken
    std::vector<std::shared_ptr<DisplayTarget>> m_taken; // main thread; holds on their way out
    std::size_t m_takenEnd = 0;                          // main thread; what needs them lies before this
    int m_showing = 0;                                   // main thread; targets that show a value just now
};

} // namespace platform
