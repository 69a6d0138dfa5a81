#pragma once

#include <QtGlobal>

namespace chorale {

/// Height of a label's row with the value, in points.
inline constexpr qreal valueRowHeight = 40;
/// The value's row reaches into the line of the name.
inline constexpr qreal valueRowOverlap = 10;

} // namespace chorale
