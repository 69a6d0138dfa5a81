#include "Tidepool/Events/UIEventThrottler.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace tidepool {

using Clock = std::chrono::steady_clock;

namespace {

/// Takes a thread that cannot be waited for, because it releases its own throttler: the next one does, or
/// else the end of the program.
void leave(std::jthread thread) {
    static std::mutex mutex;
    static std::jthread last;
    const std::lock_guard lock(mutex);
    std::swap(last, thread);
}

} // namespace

/// Shared with its thread, whose closure may release the throttler.
struct UIEventThrottler::Timer {
    explicit Timer(std::chrono::duration<double> seconds)
        : interval(std::max(std::chrono::duration_cast<Clock::duration>(seconds), Clock::duration(1))) {}

    const Clock::duration interval;
    std::mutex mutex; // guards what follows: the caller's thread and the timer's
    std::condition_variable_any changed;
    std::function<void()> work;
    std::optional<Clock::time_point> deadline; // none while idle

    void run(const std::stop_token& stop) {
        std::unique_lock lock(mutex);
        while (!stop.stop_requested()) {
            const auto due = deadline;
            const auto isOther = [&] { return deadline != due; };
            if (!due)
                changed.wait(lock, stop, isOther);
            else if (!changed.wait_until(lock, stop, *due, isOther) && !stop.stop_requested())
                fire(lock);
        }
    }

    void fire(std::unique_lock<std::mutex>& lock) {
        // What a long run or a sleeping machine has missed is not made up for.
        *deadline += ((Clock::now() - *deadline) / interval + 1) * interval;
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
    m_thread.request_stop();
    if (m_thread.get_id() == std::this_thread::get_id())
        leave(std::move(m_thread));
}

void UIEventThrottler::throttle(std::function<void()> work) {
    if (!m_thread.joinable())
        m_thread = std::jthread([timer = m_timer](const std::stop_token& stop) { timer->run(stop); });
    // Last: the closure may release the throttler.
    const auto former = m_timer->replace(std::move(work), Clock::now() + m_timer->interval);
}

void UIEventThrottler::cancel() {
    const auto timer = m_timer; // what the closure captured may release the throttler
    const auto former = timer->replace(nullptr, std::nullopt);
}

} // namespace tidepool
