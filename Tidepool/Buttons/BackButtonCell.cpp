#include "Tidepool/Buttons/BackButtonCell.h"

#include <QPainter>

namespace tidepool {

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

QRectF BackButtonCell::drawingRect(const QRectF& bounds) const {
    const QRectF rect = StyledButtonCell::drawingRect(bounds).adjusted(0, topMargin, 0, 0);
    return layoutDirection() == Qt::RightToLeft ? rect.adjusted(0, 0, -arrowWidth, 0)
                                                : rect.adjusted(arrowWidth, 0, 0, 0);
}

QSizeF BackButtonCell::cellSize() const {
    return StyledButtonCell::cellSize() + QSizeF(arrowWidth, 0);
}

void BackButtonCell::drawBezel(QPainter& painter, const QRectF& frame) const {
    if (layoutDirection() == Qt::LeftToRight) {
        StyledButtonCell::drawBezel(painter, frame);
        return;
    }
    painter.save();
    painter.translate(frame.left() + frame.right(), 0);
    painter.scale(-1, 1);
    StyledButtonCell::drawBezel(painter, frame);
    painter.restore();
}

} // namespace tidepool
