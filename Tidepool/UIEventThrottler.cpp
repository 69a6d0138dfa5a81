#include "Tidepool/UIEventThrottler.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace tidepool {

using Clock = std::chrono::steady_clock;

/// Outlives its throttler while a closure runs, so that nobody waits for it.
struct UIEventThrottler::Timer {
    explicit Timer(std::chrono::duration<double> seconds)
        : interval(std::max(std::chrono::duration_cast<Clock::duration>(seconds), Clock::duration(1))) {}

    const Clock::duration interval;
    std::mutex mutex; // guards what follows: the caller's thread and the timer's
    std::condition_variable changed;
    std::function<void()> work;
    std::optional<Clock::time_point> deadline; // none while idle
    bool hasThread = false;
    bool isReleased = false;

    void run() {
        std::unique_lock lock(mutex);
        while (!isReleased) {
            if (!deadline)
                changed.wait(lock);
            else if (const auto due = *deadline; changed.wait_until(lock, due) == std::cv_status::timeout)
                fireIfDue(lock);
        }
    }

    void fireIfDue(std::unique_lock<std::mutex>& lock) {
        const auto now = Clock::now();
        if (!deadline || now < *deadline)
            return;
        // What a long run or a sleeping machine has missed is not made up for.
        *deadline += ((now - *deadline) / interval + 1) * interval;
        auto current = work;
        lock.unlock();
        current();
        current = nullptr; // what it captured may end this timer
        lock.lock();
    }

    /// The closure before, to be destroyed without the lock.
    [[nodiscard]] std::function<void()> replace(std::function<void()> next,
                                                std::optional<Clock::time_point> due) {
        const std::lock_guard lock(mutex);
        deadline = due;
        changed.notify_all();
        return std::exchange(work, std::move(next));
    }
};

UIEventThrottler::UIEventThrottler(std::chrono::duration<double> interval)
    : m_timer(std::make_shared<Timer>(interval)) {}

UIEventThrottler::~UIEventThrottler() {
    cancel();
    const std::lock_guard lock(m_timer->mutex);
    m_timer->isReleased = true;
    m_timer->changed.notify_all();
}

void UIEventThrottler::throttle(std::function<void()> work) {
    const auto former = m_timer->replace(std::move(work), Clock::now() + m_timer->interval);
    const std::lock_guard lock(m_timer->mutex);
    if (!std::exchange(m_timer->hasThread, true))
        std::thread([timer = m_timer] { timer->run(); }).detach();
}

void UIEventThrottler::cancel() {
    const auto former = m_timer->replace(nullptr, std::nullopt);
}

} // namespace tidepool
