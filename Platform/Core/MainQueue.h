#pragma once

#include <functional>

namespace platform {

/// The serial queue of the main thread.
class MainQueue {
public:
    /// Runs `work` on the main thread in a later turn of its event loop, first in, first out. Any thread; the
    /// caller never waits for the work. Allocates, so a thread that renders audio must not call it. Work that
    /// is still queued when the `QCoreApplication` goes away is dropped.
    static void async(std::function<void()> work);
};

} // namespace platform
