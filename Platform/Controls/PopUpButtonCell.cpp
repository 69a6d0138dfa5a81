#include "Platform/Controls/PopUpButtonCell.h"

#include "Platform/Controls/FocusRing.h"
#include "Platform/Graphics/Dimming.h"
#include "Platform/Graphics/Pens.h"

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

QRectF PopUpButtonCell::titleRect(const QRectF& bounds, const CellContext& context) const {
    return context.direction == Qt::LeftToRight ? bounds.adjusted(titleMargin, 0, -arrowsWidth, 0)
                                                : bounds.adjusted(arrowsWidth, 0, -titleMargin, 0);
}

QSizeF PopUpButtonCell::cellSize(const CellContext& context) const {
    return {titleMargin + context.title.size().width() + arrowsWidth, naturalHeight};
}

QColor PopUpButtonCell::contentColor(const CellContext& context) const {
    const QColor color = controlTextColor(context);
    return context.state.contains(StyledControlState::disabled) ? dimmed(color) : color;
}

void PopUpButtonCell::drawBezel(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    ButtonCell::drawBezel(painter, frame, context);
    const bool isLeftToRight = context.direction == Qt::LeftToRight;
    const qreal x = isLeftToRight ? frame.right() - arrowsWidth / 2 : frame.left() + arrowsWidth / 2;
    const QPointF center(x, frame.center().y());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(roundPen(contentColor(context), 1.5));
    if (m_pullsDown) {
        drawArrow(painter, center - QPointF(0, 1.5), 3);
    } else {
        drawArrow(painter, center - QPointF(0, 2.5), -3);
        drawArrow(painter, center + QPointF(0, 2.5), 3);
    }
    painter.restore();
}

void PopUpButtonCell::drawTitle(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    const auto alignment = context.direction == Qt::LeftToRight ? Qt::AlignLeft : Qt::AlignRight;
    context.title.draw(painter, frame, {contentColor(context).rgba(), alignment});
}

void PopUpButtonCell::drawFocus(QPainter& painter, const QRectF& bounds, const CellContext&) const {
    drawFocusRing(painter, bounds, {.radius = 4});
}

} // namespace platform
