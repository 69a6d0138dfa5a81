#include "Noteloft/QuillfenButtonStyle.h"

#include "Noteloft/ButtonMetrics.h"
#include "Noteloft/ResourceBundle.h"
#include "Platform/Graphics/SystemFont.h"

#include <QPainter>

namespace noteloft {

QFont QuillfenButtonStyle::font() const {
    return platform::systemFont(12, QFont::Bold, platform::FontDesign::rounded);
}

QSizeF QuillfenButtonStyle::size(QSizeF label) const {
    return {label.width(), ButtonMetrics::height};
}

qreal QuillfenButtonStyle::overhang() const {
    return ButtonMetrics::overhang;
}

void QuillfenButtonStyle::paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const {
    const auto& bezel = configuration.isPressed ? Assets::buttonDown : Assets::button;
    bezel.image().draw(painter, configuration.frame);
    painter.setPen(configuration.isPressed ? Assets::labels : Assets::buttonText);
    painter.drawText(configuration.frame, Qt::AlignCenter, configuration.label);
    if (configuration.isFocused)
        platform::paintFocusRing(painter, configuration.frame, ButtonMetrics::focusRadius);
}

} // namespace noteloft
