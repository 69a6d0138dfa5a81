#include "Tidepool/ToolButtonCell.h"

#include "Tidepool/CellDrawing.h"
#include "Tidepool/ControlAssets.h"

namespace tidepool {

void ToolButtonCell::drawBezel(QPainter& painter, const QRectF& frame) const {
    StyledButtonCell::drawBezel(painter, frame);
    if (!m_showMoreIcon)
        return;
    // Inside the bezel's edge.
    constexpr qreal margin = 4;
    const platform::Image& more = CornerToolImages::more;
    QRectF mark(QPointF(), more.size());
    mark.moveBottomRight(frame.bottomRight() - QPointF(margin, margin));
    tidepool::drawBezel(painter, mark, &more, *this);
}

} // namespace tidepool
