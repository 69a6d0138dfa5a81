#include "Noteloft/BezelButtonStyle.h"

#include "Platform/Controls/FocusRing.h"
#include "Platform/Graphics/Image.h"

#include <QPainter>

namespace noteloft {

QSizeF BezelButtonStyle::size(QSizeF label) const {
    constexpr qreal height = 24;
    return {label.width(), height};
}

qreal BezelButtonStyle::overhang() const {
    return 2;
}

void BezelButtonStyle::paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const {
    constexpr qreal focusRadius = 7;
    bezel(configuration.isPressed()).draw(painter, configuration.frame);
    painter.setPen(labelColor(configuration));
    painter.drawText(configuration.frame, Qt::AlignCenter, configuration.label);
    if (configuration.isFocused())
        platform::drawFocusRing(painter, configuration.frame, {.radius = focusRadius});
}

} // namespace noteloft
