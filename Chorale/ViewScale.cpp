#include "Chorale/ViewScale.h"

#include "Platform/Graphics/Image.h"

#include <QPainter>

#include <utility>

namespace chorale {

namespace {

qreal factorInForce = 1; // main thread

} // namespace

ViewScale::ViewScale(qreal factor) : m_outer(std::exchange(factorInForce, factor)) {}

ViewScale::~ViewScale() {
    factorInForce = m_outer;
}

qreal ViewScale::current() {
    return factorInForce;
}

void drawScaled(QPainter& painter, const platform::Image& image, const QRectF& frame, qreal scale) {
    if (scale == 1)
        return image.draw(painter, frame);
    const qreal pixels = painter.device()->devicePixelRatioF() * scale;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(frame, image.bitmap(frame.size() / scale, pixels));
}

} // namespace chorale
