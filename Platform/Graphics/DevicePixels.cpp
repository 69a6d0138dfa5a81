#include "Platform/Graphics/DevicePixels.h"

#include <QPaintEngine>
#include <QPainter>
#include <QTransform>

#include <cmath>

namespace platform {

qreal pixelsPerPoint(const QPainter& painter) {
    const QTransform& transform = painter.deviceTransform();
    const bool isUniform = transform.type() <= QTransform::TxScale && transform.m11() == transform.m22();
    return isUniform && transform.m11() > 0 ? transform.m11() : painter.device()->devicePixelRatioF();
}

std::optional<PaintedMemory> pictureMemory(const QPaintDevice& device) {
    if (device.devType() != QInternal::Image)
        return std::nullopt;
    const auto& image = static_cast<const QImage&>(device);
    if (image.format() != QImage::Format_RGB32 && image.format() != QImage::Format_ARGB32_Premultiplied)
        return std::nullopt;
    // The image's own pointer: to ask for writable bits would part it from a copy that shares them.
    auto* const pixels = reinterpret_cast<QRgb*>(const_cast<uchar*>(image.constBits()));
    return PaintedMemory{pixels, image.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb)), image.rect()};
}

std::optional<PaintedMemory> paintedMemory(const QPainter& painter, qreal scale) {
    const QTransform& transform = painter.deviceTransform();
    const QPaintEngine& engine = *painter.paintEngine();
    if (transform.type() > QTransform::TxScale || transform.m11() != scale || transform.m22() != scale ||
        painter.hasClipping() || painter.opacity() < 1 ||
        painter.compositionMode() != QPainter::CompositionMode_SourceOver ||
        engine.type() != QPaintEngine::Raster)
        return std::nullopt;
    auto memory = pictureMemory(*engine.paintDevice());
    const QRegion clip = engine.systemClip();
    if (!memory || clip.rectCount() > 1)
        return std::nullopt;
    if (!clip.isEmpty())
        memory->bounds &= clip.boundingRect();
    return memory;
}

qreal onPixel(qreal points, qreal scale) {
    return std::round(points * scale) / scale;
}

void drawPixels(QPainter& painter, QPointF origin, const QImage& image) {
    const qreal scale = image.devicePixelRatio();
    const QTransform& transform = painter.deviceTransform();
    const bool isScaledOnly =
        transform.type() == QTransform::TxScale && transform.m11() == scale && transform.m22() == scale;
    if (!isScaledOnly) {
        painter.drawImage(origin, image);
        return;
    }
    const QTransform before = painter.worldTransform();
    painter.scale(1 / scale, 1 / scale);
    painter.drawImage(QRectF(origin * scale, QSizeF(image.size())), image, QRectF(image.rect()));
    painter.setWorldTransform(before);
}

} // namespace platform
