#pragma once

#include "Platform/Core/BoundedQueue.h"
#include "Platform/Core/WakeUp.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>

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
    /// waits for the next call. Main thread.
    void drain();

    /// Whether something waits. A thread that renders audio leaves no other sign.
    bool isEmpty() const;

    /// Signalled by what is sent outside a `RealtimeScope`, once until the next `drain`.
    const WakeUp& wakeUp() const { return m_wakeUp; }

    /// How many targets there are. Any thread.
    int targets() const { return m_targets.load(std::memory_order_relaxed); }

private:
    friend class DisplayTarget;

    struct Update {
        std::shared_ptr<DisplayTarget> target;
        std::uint64_t number = 0;
        float value = 0;
        std::uint32_t source = 0;
    };

    bool push(Update& update) { return m_updates.push(update); }

    void list(DisplayTarget& target);
    void wake();
    void showListed();

    std::atomic<int> m_targets = 0; // any thread; outlives the updates
    BoundedQueue<Update> m_updates;
    std::atomic<DisplayTarget*> m_listed = nullptr; // any thread; the one listed last
    std::atomic<bool> m_isWoken = false;            // any thread
    WakeUp m_wakeUp;
};

} // namespace platform
