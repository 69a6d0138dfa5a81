#include "Platform/Graphics/DevicePixels.h"

#include <QImage>
#include <QPainter>
#include <QTransform>

#include <cmath>

namespace platform {

qreal pixelsPerPoint(const QPainter& painter) {
    const QTransform& transform = painter.deviceTransform();
    const bool isUniform = transform.type() <= QTransform::TxScale && transform.m11() == transform.m22();
    return isUniform && transform.m11() > 0 ? transform.m11() : painter.device()->devicePixelRatioF();
}

qreal onPixel(qreal points, qreal scale) {
    return std::round(points * scale) / scale;
}

namespace {

QPointF nextPixel(QPointF pixels) {
    constexpr qreal half = 0.5001; // what lies between two goes the same way from wherever it was mapped
    return {std::floor(pixels.x() + half), std::floor(pixels.y() + half)};
}

} // namespace

QPointF onPixel(QPointF points, qreal scale) {
    return nextPixel(points * scale) / scale;
}

QPointF onDevicePixel(const QPainter& painter, QPointF point) {
    const QTransform& device = painter.deviceTransform();
    return device.inverted().map(nextPixel(device.map(point)));
}

void drawPixels(QPainter& painter, QPointF origin, const QImage& image) {
    const qreal scale = image.devicePixelRatio();
    const QTransform& transform = painter.deviceTransform();
    const bool isPlacedOnly =
        transform.type() <= QTransform::TxScale && transform.m11() == scale && transform.m22() == scale;
    if (!isPlacedOnly) {
        painter.drawImage(origin, image);
        return;
    }
    // At a whole pixel: between two, Qt may lose a row that lies at the edge of what it may paint.
    const QPointF shift = transform.map(origin).toPoint() - transform.map(origin);
    const QTransform before = painter.worldTransform();
    painter.scale(1 / scale, 1 / scale);
    painter.drawImage(QRectF(origin * scale + shift, QSizeF(image.size())), image, QRectF(image.rect()));
    painter.setWorldTransform(before);
}

} // namespace platform
