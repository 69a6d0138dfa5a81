#pragma once

#include <QColor>

class QPainter;
class QRectF;

namespace platform {

/// The ring around what has the keyboard. Lengths are points.
struct FocusRing {
    qreal radius = 3;
    /// The system's highlight until set.
    QColor color = systemColor();
    qreal width = 1.5;
    /// How opaque the inside is filled, from 0 to 1.
    float fill = 0;

    static QColor systemColor();
};

/// Draws the ring within `frame`.
void drawFocusRing(QPainter& painter, const QRectF& frame, const FocusRing& ring);

} // namespace platform
