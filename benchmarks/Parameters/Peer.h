#pragma once

#include <memory>
#include <string>
#include <vector>

namespace benchmark {

/// Another library's parameter, whose changes its main thread shows.
class Peer {
public:
    Peer() = default;
    virtual ~Peer() = default;
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;

    virtual std::string name() const = 0;

    /// From a thread that renders audio: as in `measureChanges`.
    virtual void change(int index) = 0;
    virtual bool isEmpty() = 0;

    /// Main thread: shows what has come.
    virtual void drain() = 0;

    /// Changes many other parameters from another thread, once each. Main thread.
    virtual void changeMany() = 0;

    /// Until all of these are shown. Main thread.
    virtual void showMany() = 0;
};

/// Those that were built; see the CMake option NOTELOFT_BUILD_PEERS. `many` is for `changeMany`.
std::vector<std::unique_ptr<Peer>> makePeers(int many);

} // namespace benchmark
