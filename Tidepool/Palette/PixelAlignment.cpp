#include "Tidepool/Palette/PixelAlignment.h"

#include <algorithm>
#include <cmath>

namespace tidepool {

namespace {

double truncated(double points, double scale) {
    return std::trunc(scale * points) / scale;
}

/// The smallest rectangle on whole pixels around `rect`. What floating-point numbers are off by is no pixel.
QRectF integral(const QRectF& rect, double scale) {
    constexpr double tolerance = 1e-6;
    const double left = std::floor(rect.left() * scale + tolerance);
    const double top = std::floor(rect.top() * scale + tolerance);
    const double right = std::ceil(rect.right() * scale - tolerance);
    const double bottom = std::ceil(rect.bottom() * scale - tolerance);
    return {left / scale, top / scale, (right - left) / scale, (bottom - top) / scale};
}

} // namespace

QRectF centered(QSizeF size, const QRectF& rect, double scale) {
    const QPointF origin(truncated((rect.width() - size.width()) * 0.5, scale),
                         truncated((rect.height() - size.height()) * 0.5, scale));
    return integral(QRectF(origin, size), scale);
}

double horizontallyCentered(double width, const QRectF& rect, double scale,
                            std::optional<HorizontalRange> limits) {
    const double x = truncated(rect.center().x() - width * 0.5, scale);
    return limits ? std::min(std::max(x, limits->minimum), limits->maximum) : x;
}

double keptInside(const QRectF& inner, const QRectF& outer) {
    return std::max(outer.left(), std::min(outer.right(), inner.right()) - inner.width());
}

} // namespace tidepool
