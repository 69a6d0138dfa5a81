#include "Platform/Controls/FocusRing.h"

#include "Platform/Graphics/Pens.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace platform {

QColor FocusRing::systemColor() {
    return QGuiApplication::palette().color(QPalette::Highlight).lighter(130);
}

void drawFocusRing(QPainter& painter, const QRectF& frame, const FocusRing& ring) {
    QColor fill = ring.color;
    fill.setAlphaF(ring.color.alphaF() * ring.fill);
    const qreal inset = ring.width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(roundPen(ring.color, ring.width));
    painter.setBrush(ring.fill > 0 ? QBrush(fill) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), ring.radius, ring.radius);
    painter.restore();
}

} // namespace platform
