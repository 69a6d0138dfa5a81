#pragma once

namespace platform {

/// Wakes a thread that sleeps in an event loop.
class WakeUp {
public:
    WakeUp();
    ~WakeUp();
    WakeUp(const WakeUp&) = delete;
    WakeUp& operator=(const WakeUp&) = delete;

    /// Readable from `signal` to `clear`; for a `QSocketNotifier`. Negative if the process has no more file
    /// descriptors: then nobody is woken.
    int descriptor() const { return m_descriptor; }

    /// Any thread. Makes a system call.
    void signal();

    void clear();

private:
    int m_descriptor;
};

} // namespace platform
