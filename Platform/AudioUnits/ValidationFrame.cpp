#include "Platform/AudioUnits/ValidationFrame.h"

#include <cstdint>

namespace platform {

namespace {

constexpr std::size_t lengthSize = 4;
constexpr std::size_t headerSize = 1 + lengthSize;

bool isKind(char byte) {
    using enum ValidationFrame::Kind;
    const auto kind = static_cast<ValidationFrame::Kind>(byte);
    return kind == line || kind == verdict || kind == end;
}

std::size_t payloadLength(std::string_view bytes) {
    std::size_t length = 0;
    for (std::size_t i = lengthSize; i > 0; --i)
        length = length << 8 | static_cast<std::uint8_t>(bytes[i]);
    return length;
}

} // namespace

std::string ValidationFrame::encoded() const {
    std::string bytes(1, static_cast<char>(kind));
    for (std::size_t i = 0; i < lengthSize; ++i)
        bytes += static_cast<char>(payload.size() >> (8 * i) & 0xFF);
    return bytes + payload;
}

std::optional<ValidationFrame> ValidationFrameReader::next() {
    if (m_bytes.size() < headerSize || !isKind(m_bytes[0]))
        return {};
    const std::size_t length = payloadLength(m_bytes);
    if (length > maximumPayload || m_bytes.size() < headerSize + length)
        return {};
    ValidationFrame frame{static_cast<ValidationFrame::Kind>(m_bytes[0]), m_bytes.substr(headerSize, length)};
    m_bytes.erase(0, headerSize + length);
    return frame;
}

} // namespace platform
