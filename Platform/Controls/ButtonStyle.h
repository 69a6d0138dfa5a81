#pragma once

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace platform {

/// What a button style draws.
struct ButtonConfiguration {
    QString label;
    /// The whole button, in its own coordinates.
    QRectF frame;
    bool isPressed = false;
    bool isEnabled = true;
    /// The keyboard is on the button, and the user uses the keyboard.
    bool isFocused = false;
};

/// The look of a button: a value without state of its own.
class ButtonStyle {
public:
    virtual ~ButtonStyle() = default;

    virtual QFont font() const = 0;

    /// The size of the button around a label of `label` points.
    virtual QSizeF size(QSizeF label) const = 0;

    /// How far the background reaches beyond the button's place in a layout, on its left and right side, in
    /// points.
    virtual qreal overhang() const { return 0; }

    virtual void paint(QPainter& painter, const ButtonConfiguration& configuration) const = 0;
};

/// The ring around what has the keyboard: `frame` with rounded corners, in the system's highlight colour.
void paintFocusRing(QPainter& painter, const QRectF& frame, qreal radius);

} // namespace platform
