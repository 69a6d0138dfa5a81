#pragma once

#include <QColor>

namespace platform {

/// How opaque what is pressed or disabled is drawn, as part of its usual opacity.
inline constexpr float dimmedOpacity = 0.5F;

inline QColor dimmed(QColor color) {
    color.setAlphaF(color.alphaF() * dimmedOpacity);
    return color;
}

} // namespace platform
