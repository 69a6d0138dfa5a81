#pragma once

#include "Platform/Core/CacheLine.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace platform {

class DisplayQueue;

/// Something whose value changes on any thread and is shown on the main thread. Owned by shared pointers,
/// best those of `makeMainThreadShared`: it is kept alive until what was sent has been shown, and then until
/// the main thread's loop is about to sleep, if somebody else owned it still when it was shown.
class DisplayTarget : public std::enable_shared_from_this<DisplayTarget> {
public:
    /// Where changes come from, counted from 0.
    static constexpr std::size_t sourceCount = 2;

    virtual ~DisplayTarget();
    DisplayTarget(const DisplayTarget&) = delete;
    DisplayTarget& operator=(const DisplayTarget&) = delete;

protected:
    explicit DisplayTarget(DisplayQueue& queue);

    /// Has the value shown in a later turn of the main thread's loop. Any thread; never allocates, locks or
    /// waits, and makes no system call in a `RealtimeScope`. While the queue is full only the latest value of
    /// each source is kept. Stops the program if no shared pointer owns this.
    void send(std::size_t source, float value);

    /// Main thread. Never with an older value after a newer one of the same source, or of a higher one.
    virtual void show(std::size_t source, float value) = 0;

private:
    friend class DisplayQueue;

    using Number = std::uint64_t;

    // A value that found the queue full, with the lower half of its number; 0 for none. Half a number is
    // enough as long as fewer than 2^30 values find the queue full before the main thread shows the first of
    // them.
    using Word = std::uint64_t;
    static Word pack(Number number, float value);
    Number numberOf(Word word) const;
    static float valueOf(Word word);

    // Whether this owns itself, for what waits in the queue. A sender first claims its place there and then
    // looks at this; the main thread first takes the hold away and then looks how many places are claimed.
    // So it knows which values may rely on the hold that it has taken.
    enum class Hold : std::uint8_t { none, beginning, complete };

    std::shared_ptr<DisplayTarget> self();
    void hold();
    void keep(Number number, std::size_t source, float value);
    void showKept();
    void showIfNewer(Number number, std::size_t source, float value);

    DisplayQueue& m_queue;
    std::atomic<Hold> m_hold = Hold::none; // any thread

    alignas(cacheLine) std::array<std::atomic<Word>, sourceCount> m_kept{}; // any thread
    std::atomic<bool> m_isListed = false;                                   // any thread
    DisplayTarget* m_nextListed = nullptr;       // who has listed this, then the main thread
    std::shared_ptr<DisplayTarget> m_listedSelf; // who has listed this, then the main thread

    alignas(cacheLine) std::shared_ptr<DisplayTarget> m_self; // who began the hold, then the main thread
    DisplayTarget* m_nextHeld = nullptr;                      // main thread
    bool m_isNoted = false;                                   // main thread; whether it is in that list
    std::array<Number, sourceCount> m_shown{};                // main thread
};

} // namespace platform
