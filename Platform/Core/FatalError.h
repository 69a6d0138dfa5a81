#pragma once

#include <string_view>

namespace platform {

/// Stops the program because of a programming error: writes `message` and a line feed to standard error,
/// then aborts. Any thread.
[[noreturn]] void fatalError(std::string_view message);

} // namespace platform
