#include "Platform/Windows/WindowCorner.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace platform {

namespace {

constexpr int radius = 12;

bool isRight(Qt::Corner corner) {
    return corner == Qt::TopRightCorner || corner == Qt::BottomRightCorner;
}

bool isBottom(Qt::Corner corner) {
    return corner == Qt::BottomLeftCorner || corner == Qt::BottomRightCorner;
}

} // namespace

WindowCorner::WindowCorner(Qt::Corner corner, QWidget* window) : QWidget(window), m_corner(corner) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(isRight(corner) ? window->width() - radius : 0,
                isBottom(corner) ? window->height() - radius : 0, radius, radius);
    raise();
}

QRegion WindowCorner::shape(QSize size) {
    QRegion region(0, radius, size.width(), size.height() - 2 * radius);
    for (int y = 0; y < radius; ++y) {
        // The lower edge of the row is where the circle is widest in it.
        const int rise = radius - (y + 1);
        const int inset = static_cast<int>(radius - std::sqrt(radius * radius - rise * rise));
        region += QRect(inset, y, size.width() - 2 * inset, 1);
        region += QRect(inset, size.height() - 1 - y, size.width() - 2 * inset, 1);
    }
    return region;
}

void WindowCorner::paintEvent(QPaintEvent*) {
    QPainterPath outside;
    outside.addRect(rect());
    QPainterPath circle;
    circle.addEllipse(QPointF(isRight(m_corner) ? 0 : radius, isBottom(m_corner) ? 0 : radius), radius,
                      radius);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(outside - circle, Qt::black);
}

} // namespace platform
