#include "Platform/Windows/WindowButton.h"

#include "Platform/Controls/ButtonStyle.h"

#include <QPainter>

namespace platform {

namespace {

constexpr int diameter = 24;

} // namespace

WindowButton::WindowButton(Kind kind, const QString& name, QWidget* parent)
    : BaseButton(parent), m_kind(kind) {
    setAccessibleName(name);
    setToolTip(name);
    setFocusPolicy(Qt::TabFocus);
    setFixedSize(diameter, diameter);
}

void WindowButton::setPresence(qreal presence) {
    m_presence = presence;
    update();
}

QSize WindowButton::sizeHint() const {
    return {diameter, diameter};
}

void WindowButton::paintEvent(QPaintEvent*) {
    if (m_presence <= 0)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_presence);
    const int veil = isDown() ? 70 : underMouse() ? 48 : 22;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, veil));
    painter.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
    paintGlyph(painter);
    if (hasFocus())
        paintFocusRing(painter, rect(), diameter / 2.0);
}

void WindowButton::paintGlyph(QPainter& painter) const {
    painter.setPen(QPen(QColor(255, 255, 255, underMouse() ? 245 : 190), 1.5, Qt::SolidLine, Qt::RoundCap));
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
    BaseButton::enterEvent(event);
    update();
}

void WindowButton::leaveEvent(QEvent* event) {
    BaseButton::leaveEvent(event);
    update();
}

} // namespace platform
