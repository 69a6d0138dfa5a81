#pragma once

#include <QRectF>
#include <QSizeF>

#include <optional>

namespace tidepool {

/// The limits of an x coordinate, in points.
struct HorizontalRange {
    double minimum;
    double maximum;
};

/// `size` in the middle of `rect`, relative to the rectangle's origin, on whole pixels of a screen with
/// `scale` pixels a point, which must be above 0. A size that is not whole in pixels grows to the next one.
QRectF centered(QSizeF size, const QRectF& rect, double scale);

/// The left edge that puts `width` around the middle of `rect`, on a whole pixel, within `limits` if given.
double horizontallyCentered(double width, const QRectF& rect, double scale,
                            std::optional<HorizontalRange> limits = std::nullopt);

/// The left edge of `inner` moved so that it ends no later than `outer` and, above all, begins no earlier.
double keptInside(const QRectF& inner, const QRectF& outer);

} // namespace tidepool
