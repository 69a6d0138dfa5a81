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

QImage WindowCorner::render(qreal scale) const {
    QImage image((QSizeF(size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainterPath outside;
    outside.addRect(rect());
    QPainterPath circle;
    circle.addEllipse(QPointF(isRight(m_corner) ? 0 : radius, isBottom(m_corner) ? 0 : radius), radius,
                      radius);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outside - circle, Qt::black);
    return image;
}

void WindowCorner::paintEvent(QPaintEvent*) {
    const qreal scale = devicePixelRatioF();
    if (m_outside.isNull() || m_outside.devicePixelRatio() != scale)
        m_outside = render(scale);
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.drawImage(QPointF(), m_outside);
}

} // namespace platform
