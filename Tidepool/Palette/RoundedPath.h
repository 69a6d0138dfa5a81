#pragma once

#include <QPainterPath>
#include <QRectF>

namespace tidepool {

/// The radius of each corner in points; 0 is a square corner.
struct CornerRadii {
    double topLeft = 0;
    double topRight = 0;
    double bottomRight = 0;
    double bottomLeft = 0;
};

/// The outline of `rect` with those corners, beginning at the upper left one and running clockwise on the
/// screen. The radii must fit in the rectangle.
QPainterPath roundedPath(const QRectF& rect, const CornerRadii& radii);

} // namespace tidepool
