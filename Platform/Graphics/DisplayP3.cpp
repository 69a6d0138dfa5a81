#include "Platform/Graphics/DisplayP3.h"

#include <QColorSpace>
#include <QColorTransform>

namespace platform {

QColor displayP3(float red, float green, float blue, float opacity) {
    static const QColorTransform toSRGB =
        QColorSpace(QColorSpace::DisplayP3).transformationToColorSpace(QColorSpace(QColorSpace::SRgb));
    return toSRGB.map(QColor::fromRgbF(red, green, blue, opacity));
}

} // namespace platform
