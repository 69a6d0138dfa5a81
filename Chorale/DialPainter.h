#pragma once

#include "Platform/Controls/StyledControlState.h"

#include <QColor>
#include <QRectF>

#include <numbers>

class QPainter;

namespace chorale {

/// How far a dial turns, in radians: three quarters of a circle, symmetrical about the top.
inline constexpr double dialSweep = 1.5 * std::numbers::pi;

/// What a dial shows.
struct DialLook {
    /// The place in the range, from 0 to 1.
    double value = 0;
    /// Where the coloured arc begins: the place of zero in a range with values on both sides.
    double origin = 0;
    QColor accent;
    /// Of it `highlighted`, `disabled` and `focused` show.
    platform::StyledControlState state;
};

/// Draws a dial into the square `frame`, in points: a knob with a pointer inside a ring that is lit from the
/// origin to the value.
void paintDial(QPainter& painter, const QRectF& frame, const DialLook& look);

} // namespace chorale
