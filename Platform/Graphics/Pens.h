#pragma once

#include <QPen>

namespace platform {

/// A pen of `width` points for lines whose ends and corners are round.
inline QPen roundPen(const QColor& color, qreal width) {
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace platform
