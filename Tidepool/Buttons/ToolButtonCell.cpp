#include "Tidepool/Buttons/ToolButtonCell.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/CellDrawing.h"

#include <QPainter>

namespace tidepool {

// Over the bezel, if there is one, and below what the user put there.
void ToolButtonCell::drawInterior(QPainter& painter, const QRectF& frame) const {
    if (m_showMoreIcon)
        drawMore(painter, frame);
    StyledButtonCell::drawInterior(painter, frame);
}

void ToolButtonCell::drawMore(QPainter& painter, const QRectF& frame) const {
    // Inside the bezel's edge.
    constexpr qreal margin = 4;
    const platform::Image& more = Images::cornerToolMore;
    QRectF mark(QPointF(), more.size());
    mark.moveBottomRight(frame.bottomRight() - QPointF(margin, margin));
    painter.save();
    if (layoutDirection() == Qt::RightToLeft) {
        painter.translate(frame.left() + frame.right(), 0);
        painter.scale(-1, 1);
    }
    tidepool::drawBezel(painter, mark, &more, *this);
    painter.restore();
}

} // namespace tidepool
