#pragma once

#include "Chorale/ParameterSteps.h"
#include "Chorale/ParameterView.h"
#include "Chorale/ViewScale.h"
#include "Platform/Controls/PanGestureRecognizer.h"

#include <QColor>
#include <QWidget>

namespace chorale {

class AudioParameter;
class ParameterGesture;

/// Turns a parameter. Drag up and down, or in a circle; hold Shift for a tenth of the speed; turn the wheel;
/// double-click, or click with Control or Alt, for the default; with the keyboard on it use the arrows, Page
/// Up, Page Down, Home, End and Delete. Whole numbers and values with names are detents; frequencies turn by
/// equal ratios. Escape takes a drag back. Each drag and each key that is held is one gesture to the host.
/// Every other key is left to the host.
class ParameterDial : public QWidget, public ParameterView {
    Q_OBJECT

public:
    enum class DragMode { vertical, circular };

    /// `diameter` is in points; `accent` is the colour of the value.
    ParameterDial(std::shared_ptr<AudioParameter> param, qreal diameter, QColor accent,
                  QWidget* parent = nullptr);
    ~ParameterDial() override;

    DragMode dragMode() const { return m_dragMode; }

    void setDragMode(DragMode mode) { m_dragMode = mode; }

    /// How many fractional digits the value is told with, and steps go by. 1 until set.
    void setDecimalPlaces(int places) { m_decimalPlaces = places; }

    int decimalPlaces() const override { return m_decimalPlaces; }

    const std::shared_ptr<AudioParameter>& parameter() const override { return m_param; }

    QString valueText() const override;
    QSize sizeHint() const override;

    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    platform::PanGestureRecognizer::Handlers drag();
    bool beginDrag(const QMouseEvent& press);
    void dragTo(const QMouseEvent& move, QPointF from);
    void endDrag(platform::PointerTracking::End end);
    /// Part of the range that the pointer has moved by.
    double turned(QPointF from, QPointF to) const;
    void reset();
    void stepOnce(double count);

    const std::shared_ptr<AudioParameter> m_param;
    const qreal m_scale = ViewScale::current();
    const qreal m_diameter; // scaled
    const QColor m_accent;
    DragMode m_dragMode = DragMode::vertical;
    int m_decimalPlaces = 1;
    double m_position = 0;                       // the drag's place in the range, between detents too
    ParameterSteps m_steps{m_param};             // of the wheel and the keys
    std::unique_ptr<ParameterGesture> m_gesture; // of a drag or a key
    platform::PanGestureRecognizer m_drag{*this, drag()};
};

} // namespace chorale
