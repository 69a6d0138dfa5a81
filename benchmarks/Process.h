#pragma once

#include <chrono>
#include <string>
#include <vector>

#include <sys/types.h>

namespace benchmark {

using Clock = std::chrono::steady_clock;

/// A program that runs while this lives, and what the kernel counts about it.
class Process {
public:
    /// Throws where the program cannot be started.
    explicit Process(const std::vector<std::string>& command);
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    /// Just before the program was executed.
    Clock::time_point started() const { return m_started; }

    /// User and system time of all threads, those that have ended, too.
    std::chrono::nanoseconds processorTime() const;

    /// Times that a thread was given a processor, over all threads that live.
    long wakeUps() const;

    /// The most memory that was resident at one time, in KiB.
    long peakMemory() const;

    /// What is resident now and no file holds: what the program wrote or shares with the screen, in KiB.
    long ownMemory() const;

private:
    Clock::time_point m_started;
    pid_t m_id = 0;
};

} // namespace benchmark
