#include "Tidepool/Buttons/BackButtonCell.h"

#include "Tidepool/Buttons/CellDrawing.h"

#include <QPainter>

namespace tidepool {

using platform::CellContext;

namespace {

/// The room of the arrow before the title, in points.
constexpr qreal arrowWidth = 8;
/// What the bezel keeps free above itself.
constexpr qreal topMargin = 6;

} // namespace

BackButtonCell::BackButtonCell() {
    setBezelStyle(BezelStyle::shadowlessSquare);
    setButtonType(ButtonType::toggle);
}

QRectF BackButtonCell::drawingRect(const QRectF& bounds, const CellContext& context) const {
    const QRectF rect = StyledButtonCell::drawingRect(bounds, context).adjusted(0, topMargin, 0, 0);
    return context.direction == Qt::RightToLeft ? rect.adjusted(0, 0, -arrowWidth, 0)
                                                : rect.adjusted(arrowWidth, 0, 0, 0);
}

QSizeF BackButtonCell::cellSize(const CellContext& context) const {
    return StyledButtonCell::cellSize(context) + QSizeF(arrowWidth, 0);
}

void BackButtonCell::drawBezel(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    painter.save();
    if (context.direction == Qt::RightToLeft)
        mirror(painter, frame);
    StyledButtonCell::drawBezel(painter, frame, context);
    painter.restore();
}

} // namespace tidepool
