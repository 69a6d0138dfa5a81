#pragma once

#include <QColor>

namespace platform {

/// The sRGB colour nearest to an encoded Display P3 colour; components and opacity between 0 and 1.
QColor displayP3(float red, float green, float blue, float opacity = 1);

} // namespace platform
