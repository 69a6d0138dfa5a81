#pragma once

#include "Chorale/ParameterView.h"
#include "Chorale/ViewScale.h"

#include <QColor>
#include <QFont>
#include <QWidget>

namespace platform {
class Menu;
}

namespace chorale {

class AudioParameter;

/// The name of a parameter with named values, and the name of its value: what a `DialLabel` is for numbers.
/// A click, or Return or F2 with the keyboard on it, opens a menu of the values; to choose one is one gesture
/// to the host. Sizes are points.
class ChoiceLabel : public QWidget, public ParameterView {
    Q_OBJECT

public:
    /// `param` has value strings. The label is as wide as the longest of them.
    ChoiceLabel(std::shared_ptr<AudioParameter> param, QColor labelColor, QColor valueColor,
                float labelFontSize, float valueFontSize, QWidget* parent = nullptr);
    ~ChoiceLabel() override;

    const std::shared_ptr<AudioParameter>& parameter() const override { return m_param; }

    QString valueText() const override;

    QString spokenName() const override;

    QAccessible::Role role() const override { return QAccessible::ComboBox; }

    QSize sizeHint() const override;

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRectF valueRow() const;
    qreal arrowRoom() const;
    void openMenu();

    const qreal m_scale = ViewScale::current();
    const std::shared_ptr<AudioParameter> m_param;
    const QColor m_labelColor;
    const QColor m_valueColor;
    const QFont m_labelFont;
    const QFont m_valueFont;
    std::unique_ptr<platform::Menu> m_menu; // the one that was opened last
};

} // namespace chorale
