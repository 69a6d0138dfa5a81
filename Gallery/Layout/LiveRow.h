#pragma once

#include "Platform/Core/Action.h"

#include <QWidget>

class QLabel;

namespace platform {
class AlignedBoxLayout;
}

namespace gallery {

/// Controls to try, side by side, and a line that says what they did last.
class LiveRow : public QWidget {
    Q_OBJECT

public:
    static constexpr platform::Selector hold{"sayHeld"};

    /// `hint` stands in the line until a control was used.
    explicit LiveRow(const QString& hint, QWidget* parent = nullptr);

    /// Takes the control.
    template <typename Control>
    Control& add(Control* control) {
        take(control);
        return *control;
    }

    void say(const QString& text);

    Q_INVOKABLE void sayHeld(QObject*) { say(QStringLiteral("Held")); }

private:
    void take(QWidget* control);

    platform::AlignedBoxLayout* m_row;
    QLabel* m_line;
};

} // namespace gallery
