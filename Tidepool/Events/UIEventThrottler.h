#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

namespace tidepool {

/// Runs the last of a burst of closures when the burst is over, on a background thread, and then again after
/// each interval until it is told otherwise: a closure that wants to run once cancels. Runs that a long one
/// has kept from their time are left out. All calls on one thread, except that the closure may cancel or
/// release the throttler.
class UIEventThrottler {
public:
    explicit UIEventThrottler(std::chrono::duration<double> interval);

    /// Waits for a closure that runs, which therefore must not wait for this thread; unless that closure does
    /// it.
    ~UIEventThrottler();

    UIEventThrottler(const UIEventThrottler&) = delete;
    UIEventThrottler& operator=(const UIEventThrottler&) = delete;

    /// Forgets what was given before and waits anew.
    void throttle(std::function<void()> work);

    /// No closure begins after this, and what was given is forgotten; a closure that runs already goes on.
    void cancel();

private:
    struct Timer;

    const std::shared_ptr<Timer> m_timer;
    std::jthread m_thread; // from the first closure on; last, so that it ends first
};

} // namespace tidepool
