#pragma once

#include "Platform/Controls/StyledControlState.h"

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
    /// `focused` while the keyboard is on the button, and the user uses the keyboard.
    StyledControlState state{};

    bool isPressed() const { return state.contains(StyledControlState::highlighted); }

    bool isEnabled() const { return !state.contains(StyledControlState::disabled); }

    bool isFocused() const { return state.contains(StyledControlState::focused); }
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

} // namespace platform
