#include "Chorale/UpdateButtonStyle.h"

#include "Chorale/Assets.h"
#include "Chorale/RocketFontModifier.h"
#include "Platform/Controls/FocusRing.h"

#include <QPainter>

namespace chorale {

namespace {

constexpr qreal sidePadding = 4;
constexpr qreal topPadding = 2;
constexpr qreal radius = 4;
constexpr qreal pressedOpacity = 0.8;

} // namespace

QFont UpdateButtonStyle::font() const {
    constexpr qreal size = 13;
    return RocketFontModifier{size * m_scale}.font();
}

QSizeF UpdateButtonStyle::size(QSizeF label) const {
    return {label.width() + 2 * sidePadding * m_scale, label.height() + topPadding * m_scale};
}

void UpdateButtonStyle::paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const {
    painter.setOpacity(painter.opacity() * (configuration.isPressed() ? pressedOpacity : 1));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Colors::updateBackground.color());
    painter.drawRoundedRect(configuration.frame, radius * m_scale, radius * m_scale);
    painter.setPen(Colors::background.color());
    painter.drawText(
        configuration.frame.adjusted(sidePadding * m_scale, topPadding * m_scale, -sidePadding * m_scale, 0),
        Qt::AlignCenter, configuration.label);
    if (configuration.isFocused())
        platform::drawFocusRing(painter, configuration.frame, {.radius = radius});
}

} // namespace chorale
