#include "Platform/AudioUnits/FourCharCode.h"

#include <QByteArray>

namespace platform {

std::uint32_t fourCharCode(QStringView text) {
    constexpr qsizetype length = 4;
    const QByteArray bytes = text.toUtf8();
    if (text.size() != length || bytes.size() != length)
        return 0;
    std::uint32_t code = 0;
    for (const char byte : bytes)
        code = code << 8 | static_cast<std::uint8_t>(byte);
    return code;
}

} // namespace platform
