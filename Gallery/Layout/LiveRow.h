#pragma once

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
    /// `hint` stands in the line until a control was used.
    explicit LiveRow(const QString& hint, QWidget* parent = nullptr);

    /// Takes the control.
    template <typename Control>
    Control& add(Control* control) {
        take(control);
        return *control;
    }

    void say(const QString& text);

private:
    void take(QWidget* control);

    platform::AlignedBoxLayout* m_row;
    QLabel* m_line;
};

} // namespace gallery
