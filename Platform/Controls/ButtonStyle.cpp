#include "Platform/Controls/ButtonStyle.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace platform {

void paintFocusRing(QPainter& painter, const QRectF& frame, qreal radius) {
    constexpr qreal width = 1.5;
    QColor color = QGuiApplication::palette().color(QPalette::Highlight).lighter(130);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, width));
    constexpr qreal inset = width / 2;
    painter.drawRoundedRect(frame.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

} // namespace platform
