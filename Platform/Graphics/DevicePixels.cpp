#include "Platform/Graphics/DevicePixels.h"

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
