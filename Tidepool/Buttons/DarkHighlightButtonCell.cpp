#include "Tidepool/Buttons/DarkHighlightButtonCell.h"

#include <QPainter>

namespace tidepool {

void DarkHighlightButtonCell::drawImage(QPainter& painter, const QRectF& frame) const {
    constexpr qreal dimmed = 0.5;
    const qreal opacity = painter.opacity();
    if (isHighlighted() || !isEnabled())
        painter.setOpacity(opacity * dimmed);
    shownImage().tinted(controlTextColor()).draw(painter, frame);
    painter.setOpacity(opacity);
}

} // namespace tidepool
