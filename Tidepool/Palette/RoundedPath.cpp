#include "Tidepool/Palette/RoundedPath.h"

namespace tidepool {

namespace {

/// A quarter of a circle around `centre` from `degrees`, which count as in `QPainterPath::arcTo`.
void addCorner(QPainterPath& path, QPointF centre, double radius, double degrees) {
    if (radius > 0)
        path.arcTo(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius), degrees, -90);
}

} // namespace

QPainterPath roundedPath(const QRectF& rect, const CornerRadii& radii) {
    const auto [topLeft, topRight, bottomRight, bottomLeft] = radii;
    QPainterPath path;
    path.moveTo(rect.left() + topLeft, rect.top());
    path.lineTo(rect.right() - topRight, rect.top());
    addCorner(path, {rect.right() - topRight, rect.top() + topRight}, topRight, 90);
    path.lineTo(rect.right(), rect.bottom() - bottomRight);
    addCorner(path, {rect.right() - bottomRight, rect.bottom() - bottomRight}, bottomRight, 0);
    path.lineTo(rect.left() + bottomLeft, rect.bottom());
    addCorner(path, {rect.left() + bottomLeft, rect.bottom() - bottomLeft}, bottomLeft, 270);
    path.lineTo(rect.left(), rect.top() + topLeft);
    addCorner(path, {rect.left() + topLeft, rect.top() + topLeft}, topLeft, 180);
    path.closeSubpath();
    return path;
}

} // namespace tidepool
