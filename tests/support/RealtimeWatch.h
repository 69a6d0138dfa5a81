#pragma once

/// What this thread has done, since the watch began, that a thread which renders audio must not do. Replaces
/// the memory functions and the locks of the whole program, and stops at the first system call by the
/// kernel's user dispatch. Not for builds with a sanitizer, which replaces the same functions.
class RealtimeWatch {
public:
    static constexpr long noSystemCall = -1;

    /// Watches from here to `stop`.
    RealtimeWatch();

    ~RealtimeWatch() { stop(); }

    RealtimeWatch(const RealtimeWatch&) = delete;
    RealtimeWatch& operator=(const RealtimeWatch&) = delete;

    /// Whether this kernel can tell of system calls.
    static bool isSupported();

    void stop();

    /// After `stop`. Memory taken or given back.
    long allocations() const { return m_allocations; }

    /// Mutexes, read-write locks, conditions and semaphores, contended or not.
    long locks() const { return m_locks; }

    /// The number of the first, or `noSystemCall`.
    long systemCall() const { return m_systemCall; }

private:
    bool m_isWatching = true;
    long m_allocations = 0;
    long m_locks = 0;
    long m_systemCall = noSystemCall;
};
