#pragma once

#include <QString>

#include <optional>

namespace platform {

/// What the whole text is to the C library's `strtod` in the C locale, whatever locale the program has: a
/// decimal or hexadecimal number, an infinity or "nan". None for any other text, and for one that begins with
/// white space. Any thread.
std::optional<double> plainNumber(const QString& text);

} // namespace platform
