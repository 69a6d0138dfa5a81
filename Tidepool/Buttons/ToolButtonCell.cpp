#include "Tidepool/Buttons/ToolButtonCell.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/CellDrawing.h"

#include <QPainter>

namespace tidepool {

using platform::CellContext;

// Over the bezel, if there is one, and below what the user put there.
void ToolButtonCell::drawInterior(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    if (m_showMoreIcon)
        drawMore(painter, frame, context);
    StyledButtonCell::drawInterior(painter, frame, context);
}

void ToolButtonCell::drawMore(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    // Inside the bezel's edge.
    constexpr qreal margin = 4;
    const platform::Image& more = Images::cornerToolMore;
    QRectF mark(QPointF(), more.size());
    mark.moveBottomRight(frame.bottomRight() - QPointF(margin, margin));
    painter.save();
    if (context.direction == Qt::RightToLeft)
        mirror(painter, frame);
    drawTinted(painter, mark, more, controlTextColor(context), opacityOfBezel(context.state));
    painter.restore();
}

} // namespace tidepool
