#pragma once

#include <QFont>

class QWidget;

namespace chorale {

/// The display font "Rocket". The program that uses the module ships the font; without it the desktop's font
/// stands in.
struct RocketFontModifier {
    /// In points.
    qreal size;

    QFont font() const;
    void apply(QWidget& widget) const;
};

/// Sets the display font of `widget` at `size` points.
void rocketFont(QWidget& widget, qreal size);

} // namespace chorale
