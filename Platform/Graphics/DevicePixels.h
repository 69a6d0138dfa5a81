#pragma once

#include <QPointF>

class QImage;
class QPainter;

namespace platform {

/// How many pixels a point has where `painter` draws, its own scaling included; a turned or sheared painter
/// has those of its device.
qreal pixelsPerPoint(const QPainter& painter);

/// The next whole pixel of a screen with `scale` pixels a point, in points.
qreal onPixel(qreal points, qreal scale);
QPointF onPixel(QPointF points, qreal scale);

/// The whole pixel of the painter's device that is next to `point`, in the painter's coordinates.
QPointF onDevicePixel(const QPainter& painter, QPointF point);

/// Draws `image`, made for the painter's pixels in a point, pixel for pixel at `origin`. Qt would take the
/// slow road of a scaled image on every screen with more than one pixel a point.
void drawPixels(QPainter& painter, QPointF origin, const QImage& image);

} // namespace platform
