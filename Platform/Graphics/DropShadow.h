#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>

namespace platform {

struct DropShadow {
    QColor color;
    /// Softness in points: twice the standard deviation of its Gauss curve.
    qreal radius;
    /// In points.
    QPointF offset;
};

/// `image` over its own shadow; premultiplied ARGB of the same size and scale. What falls outside is lost.
QImage withDropShadow(const QImage& image, const DropShadow& shadow);

} // namespace platform
