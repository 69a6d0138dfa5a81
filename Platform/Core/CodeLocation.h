#pragma once

#include <QString>

namespace platform {

/// The canonical path of the running program.
QString programPath();

/// The canonical path of the program or library whose code or static data contains `address`; empty if none
/// does.
QString codePath(const void* address);

} // namespace platform
