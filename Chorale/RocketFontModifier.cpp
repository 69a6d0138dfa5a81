#include "Chorale/RocketFontModifier.h"

#include "Platform/Graphics/SystemFont.h"

#include <QWidget>

namespace chorale {

QFont RocketFontModifier::font() const {
    return platform::customFont(QStringLiteral("Rocket"), size);
}

void RocketFontModifier::apply(QWidget& widget) const {
    widget.setFont(font());
}

void rocketFont(QWidget& widget, qreal size) {
    RocketFontModifier{size}.apply(widget);
}

} // namespace chorale
