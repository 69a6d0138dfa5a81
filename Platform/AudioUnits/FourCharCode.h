#pragma once

#include <QStringView>

#include <cstdint>

namespace platform {

/// The four bytes of `text` as a number, the first in the most significant place: "aumi" is 0x61756D69. 0 for
/// a text that has not exactly four characters of one UTF-8 byte each.
std::uint32_t fourCharCode(QStringView text);

} // namespace platform
