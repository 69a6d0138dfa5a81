#include "Noteloft/DefaultVantorButtonStyle.h"

#include "Noteloft/ButtonMetrics.h"
#include "Platform/Graphics/SystemFont.h"
#include "Tidepool/TPColors.h"
#include "Tidepool/TPImages.h"

#include <QPainter>

namespace noteloft {

using tidepool::TPColorsAK;
using tidepool::TPImages;

QFont DefaultVantorButtonStyle::font() const {
    return platform::systemFont(11);
}

QSizeF DefaultVantorButtonStyle::size(QSizeF label) const {
    return {label.width(), ButtonMetrics::height};
}

qreal DefaultVantorButtonStyle::overhang() const {
    return ButtonMetrics::overhang;
}

void DefaultVantorButtonStyle::paint(QPainter& painter,
                                     const platform::ButtonConfiguration& configuration) const {
    const auto& bezel = configuration.isPressed ? TPImages::buttonDown : TPImages::button;
    bezel.image().draw(painter, configuration.frame);
    QColor color = configuration.isPressed ? TPColorsAK::grey50 : TPColorsAK::grey85;
    if (!configuration.isEnabled)
        color.setAlphaF(color.alphaF() * 0.5F);
    painter.setPen(color);
    painter.drawText(configuration.frame, Qt::AlignCenter, configuration.label);
    if (configuration.isFocused)
        platform::paintFocusRing(painter, configuration.frame, ButtonMetrics::focusRadius);
}

} // namespace noteloft
