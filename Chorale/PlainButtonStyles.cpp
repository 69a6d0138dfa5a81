#include "Chorale/PlainButtonStyles.h"

#include "Chorale/Assets.h"
#include "Chorale/RocketFontModifier.h"
#include "Platform/Controls/FocusRing.h"

#include <QPainter>

namespace chorale {

namespace {

constexpr qreal pressedOpacity = 0.7;
constexpr qreal focusRadius = 4;

/// What all buttons without a bezel do.
void prepare(QPainter& painter, const platform::ButtonConfiguration& configuration) {
    painter.setOpacity(painter.opacity() * (configuration.isPressed() ? pressedOpacity : 1));
    if (configuration.isFocused())
        platform::drawFocusRing(painter, configuration.frame, {.radius = focusRadius});
}

} // namespace

QFont TabButtonStyle::font() const {
    constexpr qreal size = 16;
    return RocketFontModifier{size * m_scale}.font();
}

void TabButtonStyle::paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const {
    prepare(painter, configuration);
    const bool isSelected = configuration.state.contains(platform::StyledControlState::on);
    painter.setPen(isSelected ? Colors::tabSelected.color() : Colors::tabUnselected.color());
    painter.drawText(configuration.frame, Qt::AlignCenter, configuration.label);
}

void LogoButtonStyle::paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const {
    prepare(painter, configuration);
    drawScaled(painter, m_image.image().tinted(Colors::tabSelected), configuration.frame, m_scale);
}

} // namespace chorale
