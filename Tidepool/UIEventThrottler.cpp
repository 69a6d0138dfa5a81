#include "Tidepool/UIEventThrottler.h"

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
        : interval(std::chrono::duration_cast<Clock::duration>(seconds)) {}

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
            else if (changed.wait_until(lock, *deadline) == std::cv_status::timeout)
                fireIfDue(lock);
        }
    }

    void fireIfDue(std::unique_lock<std::mutex>& lock) {
        if (!deadline || Clock::now() < *deadline)
            return;
        *deadline += interval;
        const auto current = work;
        lock.unlock();
        current();
        lock.lock();
    }
};

UIEventThrottler::UIEventThrottler(std::chrono::duration<double> interval)
    : m_timer(std::make_shared<Timer>(interval)) {}

UIEventThrottler::~UIEventThrottler() {
    const std::lock_guard lock(m_timer->mutex);
    m_timer->isReleased = true;
    m_timer->changed.notify_all();
}

void UIEventThrottler::throttle(std::function<void()> work) {
    const std::lock_guard lock(m_timer->mutex);
    m_timer->work = std::move(work);
    m_timer->deadline = Clock::now() + m_timer->interval;
    if (!std::exchange(m_timer->hasThread, true))
        std::thread([timer = m_timer] { timer->run(); }).detach();
    m_timer->changed.notify_all();
}

void UIEventThrottler::cancel() {
    const std::lock_guard lock(m_timer->mutex);
    m_timer->deadline.reset();
    m_timer->changed.notify_all();
}

} // namespace tidepool
