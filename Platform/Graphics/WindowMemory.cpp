#include "Platform/Graphics/WindowMemory.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cstdint>
#include <cstring>

// Sanitizers are not ready when the loader chooses among clones.
#if defined(__x86_64__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define NOTELOFT_VECTOR_CLONES [[gnu::target_clones("avx2", "default")]]
#else
#define NOTELOFT_VECTOR_CLONES
#endif

namespace platform {

namespace {

int closed = 0;

/// The memory of a device, and where it may be written.
struct Memory {
    QRgb* pixels;
    qsizetype stride;
    QRect bounds;

    QRgb* at(QPoint position) const { return pixels + position.y() * stride + position.x(); }
};

qsizetype strideOf(const QImage& image) {
    return image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
}

std::optional<Memory> memoryOf(const QPaintDevice& device) {
    if (closed > 0 || device.devType() != QInternal::Image)
        return std::nullopt;
    const auto& image = static_cast<const QImage&>(device);
    if (image.format() != QImage::Format_RGB32 && image.format() != QImage::Format_ARGB32_Premultiplied)
        return std::nullopt;
    // The image's own pointer: to ask for writable bits would part it from a copy that shares them.
    auto* const pixels = reinterpret_cast<QRgb*>(const_cast<uchar*>(image.constBits()));
    return Memory{pixels, strideOf(image), image.rect()};
}

/// None unless all that `painter` does to a picture with `scale` pixels a point is to place it.
std::optional<Memory> memoryOf(const QPainter& painter, qreal scale) {
    const QTransform& transform = painter.deviceTransform();
    const QPaintEngine& engine = *painter.paintEngine();
    if (transform.type() > QTransform::TxScale || transform.m11() != scale || transform.m22() != scale ||
        painter.hasClipping() || painter.opacity() < 1 ||
        painter.compositionMode() != QPainter::CompositionMode_SourceOver ||
        engine.type() != QPaintEngine::Raster)
        return std::nullopt;
    auto memory = memoryOf(*engine.paintDevice());
    const QRegion clip = engine.systemClip();
    if (!memory || clip.rectCount() > 1)
        return std::nullopt;
    if (!clip.isEmpty())
        memory->bounds &= clip.boundingRect();
    return memory;
}

// Vectors that the compiler knows for any processor.
constexpr int group = blendedTogether;
using Pixels [[gnu::vector_size(4 * group)]] = std::uint32_t;
using Channels [[gnu::vector_size(4 * group)]] = std::uint16_t;

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

} // namespace

PaintersOnly::PaintersOnly() {
    ++closed;
}

PaintersOnly::~PaintersOnly() {
    --closed;
}

bool drawIntoWindow(const QPainter& painter, QPointF origin, const QImage& image,
                    const std::vector<PictureRow>& rows) {
    const auto memory = memoryOf(painter, image.devicePixelRatio());
    if (!memory)
        return false;
    const QPoint position = painter.deviceTransform().map(origin).toPoint();
    const QRect part = QRect(position, image.size()) & memory->bounds;
    drawRows({rows.data(), reinterpret_cast<const QRgb*>(image.constBits()), strideOf(image)},
             part.translated(-position), memory->at(position), memory->stride);
    return true;
}

std::optional<PixelRows> windowPixels(const QPaintDevice& device, const QRectF& place) {
    const qreal scale = device.devicePixelRatioF();
    const QRectF exact(place.topLeft() * scale, place.size() * scale);
    const QRect pixels = exact.toRect();
    const auto memory = memoryOf(device);
    if (!memory || QRectF(pixels) != exact || !memory->bounds.contains(pixels))
        return std::nullopt;
    return PixelRows{memory->at(pixels.topLeft()), memory->stride, pixels.size()};
}

} // namespace platform
