#include "Platform/Graphics/PreparedPicture.h"

#include "Platform/Graphics/DevicePixels.h"

#include <QPainter>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

// Sanitizers are not ready when the loader chooses among clones.
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define NOTELOFT_VECTOR_CLONES [[gnu::target_clones("avx2", "default")]]
#else
#define NOTELOFT_VECTOR_CLONES
#endif

namespace platform {

namespace {

/// So many pixels are blended at once, in vectors that the compiler knows for any processor.
constexpr int group = 8;
using Pixels [[gnu::vector_size(4 * group)]] = std::uint32_t;
using Channels [[gnu::vector_size(4 * group)]] = std::uint16_t;

constexpr int wholeGroups(int pixels) {
    return (pixels + group - 1) / group * group;
}

/// A constant count makes each copy a single instruction.
template <std::size_t count>
[[gnu::always_inline]] inline void blendSome(const QRgb* source, QRgb* target) {
    Pixels from{};
    Pixels to{};
    std::memcpy(&from, source, count * sizeof(QRgb));
    std::memcpy(&to, target, count * sizeof(QRgb));
    const Pixels transparency = ~from >> 24;
    const auto factors = reinterpret_cast<Channels>(transparency | transparency << 16);
    Channels redBlue = reinterpret_cast<Channels>(to & 0xff00ff) * factors;
    Channels alphaGreen = (reinterpret_cast<Channels>(to) >> 8) * factors;
    // Divided by 255, rounded as Qt does it.
    redBlue = (redBlue + (redBlue >> 8) + 128) >> 8;
    alphaGreen = (alphaGreen + (alphaGreen >> 8) + 128) & 0xff00;
    to = from + reinterpret_cast<Pixels>(redBlue | alphaGreen);
    std::memcpy(target, &to, count * sizeof(QRgb));
}

[[gnu::always_inline]] inline void blend(const QRgb* source, QRgb* target, int count) {
    for (; count >= group; count -= group, source += group, target += group)
        blendSome<group>(source, target);
    for (; count > 0; --count, ++source, ++target)
        blendSome<1>(source, target);
}

void copy(const QRgb* source, QRgb* target, int count) {
    if (count > 0)
        std::memcpy(target, source, static_cast<std::size_t>(count) * sizeof(QRgb));
}

/// Asks for memory that is written soon.
void fetch(const QRgb* pixels, int count) {
    constexpr int inLine = 16;
    for (int x = 0; x < count; x += inLine)
        __builtin_prefetch(pixels + x, 1);
}

struct Source {
    const PictureRow* rows;
    const QRgb* pixels;
    qsizetype stride;
};

/// Draws `part` of the source over a target whose first pixel is `to`, both with strides in pixels.
NOTELOFT_VECTOR_CLONES void drawRows(const Source& source, const QRect& part, QRgb* to, qsizetype stride) {
    // The rows of a wide target lie so far apart that no processor fetches the next one by itself.
    constexpr int ahead = 3;
    const int left = part.left();
    const int right = left + part.width();
    const int bottom = part.top() + part.height();
    for (int y = part.top(); y < bottom; ++y) {
        const PictureRow& row = source.rows[y];
        const QRgb* const from = source.pixels + y * source.stride;
        QRgb* const target = to + y * stride;
        const int begin = std::clamp(row.begin, left, right);
        const int opaqueBegin = std::clamp(row.opaqueBegin, left, right);
        const int opaqueEnd = std::clamp(row.opaqueEnd, left, right);
        const int end = std::clamp(row.end, left, right);
        if (y + ahead < bottom)
            fetch(target + ahead * stride + begin, end - begin);
        blend(from + begin, target + begin, opaqueBegin - begin);
        copy(from + opaqueBegin, target + opaqueBegin, opaqueEnd - opaqueBegin);
        blend(from + opaqueEnd, target + opaqueEnd, end - opaqueEnd);
    }
}

PictureRow partsOf(const QRgb* row, int width) {
    int begin = 0;
    while (begin < width && row[begin] == 0)
        ++begin;
    int end = width;
    while (end > begin && row[end - 1] == 0)
        --end;
    int opaqueBegin = end;
    int opaqueEnd = end;
    for (int x = begin, length = 0; x < end; ++x) {
        length = qAlpha(row[x]) == 255 ? length + 1 : 0;
        if (length > opaqueEnd - opaqueBegin) {
            opaqueBegin = x + 1 - length;
            opaqueEnd = x + 1;
        }
    }
    // Whole groups are faster; to blend an opaque pixel or one that is not there changes nothing.
    opaqueBegin = begin + wholeGroups(opaqueBegin - begin);
    opaqueEnd = end - wholeGroups(end - opaqueEnd);
    if (opaqueBegin < opaqueEnd)
        return {begin, opaqueBegin, opaqueEnd, end};
    const int length = std::min(wholeGroups(end - begin), width);
    begin = std::min(begin, width - length);
    return {begin, begin + length, begin + length, begin + length};
}

} // namespace

PreparedPicture::PreparedPicture(QImage image)
    : m_image(std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied)) {
    for (int y = 0; y < m_image.height(); ++y)
        m_rows.push_back(partsOf(reinterpret_cast<const QRgb*>(m_image.constScanLine(y)), m_image.width()));
}

void PreparedPicture::draw(QPainter& painter, QPointF origin) const {
    const auto memory = paintedMemory(painter, m_image.devicePixelRatio());
    if (!memory) {
        drawPixels(painter, origin, m_image);
        return;
    }
    const QPoint position = painter.deviceTransform().map(origin).toPoint();
    const QRect part = QRect(position, m_image.size()) & memory->bounds;
    const auto* const own = reinterpret_cast<const QRgb*>(m_image.constBits());
    drawRows({m_rows.data(), own, m_image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))},
             part.translated(-position), memory->pixels + position.y() * memory->stride + position.x(),
             memory->stride);
}

} // namespace platform
