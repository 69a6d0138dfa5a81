#pragma once

#include "Chorale/ParameterView.h"
#include "Chorale/ViewScale.h"
#include "Platform/Controls/ClickGestureRecognizer.h"

#include <QColor>
#include <QWidget>

#include <functional>

namespace chorale {

class AudioParameter;
class ValueField;

/// The name and the value of a parameter. A click, or Return or F2 with the keyboard on it, opens a field to
/// type a new value into: Return writes it, Escape and a click elsewhere do not. Sizes are points.
class DialLabel : public QWidget, public ParameterView {
    Q_OBJECT

public:
    /// `width` is that of the field. `onEditingEnded` is called when Return or Escape ends the typing; it may
    /// be empty, and may destroy the label.
    DialLabel(std::shared_ptr<AudioParameter> param, QColor labelColor, QColor valueColor,
              float labelFontSize, float valueFontSize, float editingFontSize, float width, bool showSuffix,
              bool showName, int decimalPlaces, std::function<void()> onEditingEnded,
              QWidget* parent = nullptr);
    ~DialLabel() override;

    bool isEditing() const;

    /// The text in the field.
    QString valueString() const;

    const std::shared_ptr<AudioParameter>& parameter() const override { return m_param; }

    QString valueText() const override;

    QString spokenName() const override;

    int decimalPlaces() const override { return m_decimalPlaces; }

    QSize sizeHint() const override;

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QString suffix() const;
    qreal nameHeight() const;
    QRectF valueRow() const;
    QRectF fieldFrame() const;
    /// Of all values.
    qreal widestRow() const;
    void paintName(QPainter& painter) const;
    void paintValue(QPainter& painter) const;
    void paintField(QPainter& painter) const;

    void updateValueString();
    void startEditing();
    void submit();
    void leave();

    const qreal m_scale = ViewScale::current();
    const std::shared_ptr<AudioParameter> m_param;
    const QColor m_labelColor;
    const QColor m_valueColor;
    const QFont m_labelFont;
    const QFont m_valueFont;
    const qreal m_width; // scaled
    const bool m_showSuffix;
    const bool m_showName;
    const int m_decimalPlaces;
    const std::function<void()> m_onEditingEnded;
    ValueField* const m_field;
    platform::ClickGestureRecognizer m_click{*this, [this] { startEditing(); }};
};

} // namespace chorale
