#include "Tidepool/Buttons/CursorButtonCell.h"

#include <QPainter>

namespace tidepool {

void CursorButtonCell::draw(QPainter& painter, const QRectF& frame) const {
    constexpr qreal pressed = 0.5;
    const qreal opacity = painter.opacity();
    if (isHighlighted())
        painter.setOpacity(opacity * pressed);
    ImageButtonCell::draw(painter, frame);
    painter.setOpacity(opacity);
}

} // namespace tidepool
