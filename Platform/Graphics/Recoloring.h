#pragma once

#include <QColor>
#include <QImage>

namespace platform {

/// Which colours of a picture become which: pixels as saturated as `from`, or nearly, and of nearly its hue
/// get the hue of `to`, and its saturation in proportion. Greys keep what they are.
struct Recoloring {
    QRgb from;
    QRgb to;

    friend bool operator==(const Recoloring&, const Recoloring&) = default;
};

/// Premultiplied ARGB.
void recolor(QImage& image, const Recoloring& recoloring);

} // namespace platform
