#include "Platform/Controls/PopUpButtonCell.h"

#include <QPainter>

#include <array>

namespace platform {

namespace {

// Points.
constexpr qreal titleMargin = 10;
constexpr qreal arrowsWidth = 20;
constexpr qreal naturalHeight = 24;

void drawArrow(QPainter& painter, QPointF base, qreal rise) {
    constexpr qreal half = 3;
    painter.drawPolyline(
        std::array{base - QPointF(half, 0), base + QPointF(0, rise), base + QPointF(half, 0)}.data(), 3);
}

} // namespace

PopUpButtonCell::PopUpButtonCell(bool pullsDown) : m_pullsDown(pullsDown) {
    setImagePosition(ImagePosition::noImage);
}

QRectF PopUpButtonCell::titleRect(const QRectF& bounds) const {
    return layoutDirection() == Qt::LeftToRight ? bounds.adjusted(titleMargin, 0, -arrowsWidth, 0)
                                                : bounds.adjusted(arrowsWidth, 0, -titleMargin, 0);
}

QSizeF PopUpButtonCell::cellSize() const {
    return {titleMargin + preparedTitle(titleFont()).size().width() + arrowsWidth, naturalHeight};
}

QColor PopUpButtonCell::contentColor() const {
    QColor color = controlTextColor();
    if (!isEnabled())
        color.setAlphaF(color.alphaF() / 2);
    return color;
}

void PopUpButtonCell::drawBezel(QPainter& painter, const QRectF& frame) const {
    ButtonCell::drawBezel(painter, frame);
    const bool isLeftToRight = layoutDirection() == Qt::LeftToRight;
    const qreal x = isLeftToRight ? frame.right() - arrowsWidth / 2 : frame.left() + arrowsWidth / 2;
    const QPointF center(x, frame.center().y());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(contentColor(), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (m_pullsDown) {
        drawArrow(painter, center - QPointF(0, 1.5), 3);
    } else {
        drawArrow(painter, center - QPointF(0, 2.5), -3);
        drawArrow(painter, center + QPointF(0, 2.5), 3);
    }
    painter.restore();
}

void PopUpButtonCell::drawTitle(QPainter& painter, const QRectF& frame) const {
    const auto alignment = layoutDirection() == Qt::LeftToRight ? Qt::AlignLeft : Qt::AlignRight;
    preparedTitle(titleFont()).draw(painter, frame, {contentColor().rgba(), alignment});
}

} // namespace platform
