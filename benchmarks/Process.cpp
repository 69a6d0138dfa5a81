#include "benchmarks/Process.h"

#include <csignal>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace benchmark {

namespace {

/// A number of a file in /proc that has lines like "VmHWM:    1234 kB".
long statusNumber(const std::filesystem::path& file, const std::string& key) {
    std::ifstream status(file);
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(key + ':'))
            return std::stol(line.substr(key.size() + 1));
    throw std::runtime_error(file.string() + " has no " + key);
}

} // namespace

Process::Process(const std::vector<std::string>& command) {
    std::vector<char*> arguments;
    for (const auto& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str())); // exec does not change them
    arguments.push_back(nullptr);
    m_started = Clock::now();
    if (posix_spawn(&m_id, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
        throw std::runtime_error("cannot start " + command[0]);
}

Process::~Process() {
    kill(m_id, SIGTERM);
    waitpid(m_id, nullptr, 0);
}

std::chrono::nanoseconds Process::processorTime() const {
    clockid_t clock = 0;
    timespec time{};
    if (clock_getcpuclockid(m_id, &clock) != 0 || clock_gettime(clock, &time) != 0)
        throw std::runtime_error("the program has ended");
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

long Process::wakeUps() const {
    long sum = 0;
    for (const auto& thread : std::filesystem::directory_iterator("/proc/" + std::to_string(m_id) + "/task"))
        sum += statusNumber(thread.path() / "status", "voluntary_ctxt_switches");
    return sum;
}

long Process::peakMemory() const {
    return statusNumber("/proc/" + std::to_string(m_id) + "/status", "VmHWM");
}

long Process::ownMemory() const {
    const std::string status = "/proc/" + std::to_string(m_id) + "/status";
    return statusNumber(status, "RssAnon") + statusNumber(status, "RssShmem");
}

} // namespace benchmark
