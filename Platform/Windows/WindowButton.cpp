#include "Platform/Windows/WindowButton.h"

#include "Platform/Controls/FocusRing.h"
#include "Platform/Graphics/Pens.h"

#include <QPainter>

namespace platform {

namespace {

constexpr int diameter = 24;

class WindowButtonCell : public ButtonCell {
public:
    void drawFocus(QPainter& painter, const QRectF& bounds, const CellContext&) const override {
        drawFocusRing(painter, bounds, {.radius = bounds.width() / 2});
    }
};

} // namespace

WindowButton::WindowButton(Kind kind, const QString& name, QWidget* parent)
    : PushButton({}, std::make_unique<WindowButtonCell>(), parent), m_kind(kind) {
    setAccessibleName(name);
    setToolTip(name);
    setAlphaValue(0); // until its window shows it
    setFixedSize(diameter, diameter);
}

QSizeF WindowButton::intrinsicContentSize() const {
    return {diameter, diameter};
}

void WindowButton::draw(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing);
    const int veil = isDown() ? 70 : underMouse() ? 48 : 22;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, veil));
    painter.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
    paintGlyph(painter);
}

void WindowButton::paintGlyph(QPainter& painter) const {
    painter.setPen(roundPen(QColor(255, 255, 255, underMouse() ? 245 : 190), 1.5));
    constexpr qreal middle = diameter / 2.0;
    constexpr qreal reach = 4;
    switch (m_kind) {
    case Kind::menu:
        for (const qreal dy : {-3.5, 0.0, 3.5})
            painter.drawLine(QPointF(middle - reach - 0.5, middle + dy),
                             QPointF(middle + reach + 0.5, middle + dy));
        break;
    case Kind::minimize:
        painter.drawLine(QPointF(middle - reach, middle + 0.5), QPointF(middle + reach, middle + 0.5));
        break;
    case Kind::close:
        painter.drawLine(QPointF(middle - 3.5, middle - 3.5), QPointF(middle + 3.5, middle + 3.5));
        painter.drawLine(QPointF(middle - 3.5, middle + 3.5), QPointF(middle + 3.5, middle - 3.5));
        break;
    }
}

void WindowButton::enterEvent(QEnterEvent* event) {
    PushButton::enterEvent(event);
    update();
}

void WindowButton::leaveEvent(QEvent* event) {
    PushButton::leaveEvent(event);
    update();
}

} // namespace platform
