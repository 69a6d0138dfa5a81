#pragma once

namespace platform {

/// True on the thread of the `QCoreApplication`. False, on every thread, before there is one.
bool isMainThread();

/// Stops the program with "This must run on the main thread" on any other thread.
void requireMainThread();

} // namespace platform
