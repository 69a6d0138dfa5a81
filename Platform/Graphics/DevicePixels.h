#pragma once

#include <QImage>
#include <QPointF>
#include <QRect>

#include <optional>

class QPaintDevice;
class QPainter;

namespace platform {

/// How many pixels a point has where `painter` draws, its own scaling included; a turned or sheared painter
/// has those of its device.
qreal pixelsPerPoint(const QPainter& painter);

/// The memory that a painter draws on: premultiplied pixels, or opaque ones.
struct PaintedMemory {
    QRgb* pixels;     // the first row's
    qsizetype stride; // from row to row, in pixels
    QRect bounds;     // where the painter may draw, in pixels
};

/// None unless `device` is a picture of such pixels in memory, as the windows of our platforms are.
std::optional<PaintedMemory> pictureMemory(const QPaintDevice& device);

/// None unless all that `painter` does to a picture with `scale` pixels a point is to place it: it neither
/// turns, scales, fades, clips (but to one rectangle of its widget) nor mixes otherwise.
std::optional<PaintedMemory> paintedMemory(const QPainter& painter, qreal scale);

/// The next whole pixel of a screen with `scale` pixels a point, in points.
qreal onPixel(qreal points, qreal scale);

/// Draws `image`, made for the painter's pixels in a point, pixel for pixel at `origin`. Qt would take the
/// slow road of a scaled image on every screen with more than one pixel a point.
void drawPixels(QPainter& painter, QPointF origin, const QImage& image);

} // namespace platform
