#pragma once

#include "Platform/Controls/ButtonStyle.h"

#include <QColor>

namespace platform {
class Image;
}

namespace noteloft {

/// What the application's button styles share: a label of 24 points height over a bezel that reaches 2 points
/// out of the button's place in the layout on each side, since its padding is negative.
class BezelButtonStyle : public platform::ButtonStyle {
public:
    QSizeF size(QSizeF label) const override;
    qreal overhang() const override;
    void paint(QPainter& painter, const platform::ButtonConfiguration& configuration) const override;

protected:
    virtual const platform::Image& bezel(bool isPressed) const = 0;
    virtual QColor labelColor(const platform::ButtonConfiguration& configuration) const = 0;
};

} // namespace noteloft
