#pragma once

#include "Platform/Graphics/SystemFont.h"

#include <QWidget>

namespace noteloft {

/// The font family "Inter"; the desktop's font where it is missing.
struct InterFontModifier {
    /// In points.
    qreal size;
    QFont::Weight weight;

    QFont font() const { return platform::customFont(QStringLiteral("Inter"), size, weight); }

    void apply(QWidget& widget) const { widget.setFont(font()); }
};

/// Sets the application's text font of `widget`.
inline void interFont(QWidget& widget, qreal size, QFont::Weight weight) {
    InterFontModifier{size, weight}.apply(widget);
}

} // namespace noteloft
