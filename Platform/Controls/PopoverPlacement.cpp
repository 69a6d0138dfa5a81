#include "Platform/Controls/PopoverPlacement.h"

#include <QPolygonF>

#include <algorithm>

namespace platform {

namespace {

RectEdge opposite(RectEdge edge) {
    return static_cast<RectEdge>((static_cast<int>(edge) + 2) % 4);
}

bool isVertical(RectEdge edge) {
    return edge == RectEdge::minY || edge == RectEdge::maxY;
}

/// How much of the screen lies beyond that edge of the anchor.
int roomBeyond(RectEdge edge, const QRect& anchor, const QRect& screen) {
    switch (edge) {
    case RectEdge::minX:
        return anchor.left() - screen.left();
    case RectEdge::minY:
        return anchor.top() - screen.top();
    case RectEdge::maxX:
        return screen.right() - anchor.right();
    case RectEdge::maxY:
        break;
    }
    return screen.bottom() - anchor.bottom();
}

/// The start of a stretch of `length` around `middle`, inside of the screen's.
int startAround(int middle, int length, int first, int last) {
    return std::max(first, std::min(middle - length / 2, last - length));
}

} // namespace

PopoverPlacement PopoverPlacement::beside(const QRect& anchor, QSize bubble, RectEdge preferred,
                                          const QRect& screen) {
    const int needed = arrowLength + (isVertical(preferred) ? bubble.height() : bubble.width());
    const int there = roomBeyond(preferred, anchor, screen);
    const int here = roomBeyond(opposite(preferred), anchor, screen);
    const RectEdge edge = there >= needed || there >= here ? preferred : opposite(preferred);

    const QRectF exact(anchor);
    const QPoint middle = exact.center().toPoint();
    QPoint origin(startAround(middle.x(), bubble.width(), screen.left(), screen.right() + 1),
                  startAround(middle.y(), bubble.height(), screen.top(), screen.bottom() + 1));
    QPointF tip = middle;
    const auto between = [](qreal value, int start, int length) {
        constexpr int corner = cornerRadius + arrowWidth / 2;
        return std::max<qreal>(start + corner, std::min<qreal>(value, start + length - corner));
    };
    if (isVertical(edge)) {
        const bool isBelow = edge == RectEdge::maxY;
        tip = {between(tip.x(), origin.x(), bubble.width()), isBelow ? exact.bottom() : exact.top()};
        origin.setY(static_cast<int>(tip.y()) + (isBelow ? arrowLength : -arrowLength - bubble.height()));
    } else {
        const bool isAfter = edge == RectEdge::maxX;
        tip = {isAfter ? exact.right() : exact.left(), between(tip.y(), origin.y(), bubble.height())};
        origin.setX(static_cast<int>(tip.x()) + (isAfter ? arrowLength : -arrowLength - bubble.width()));
    }
    return {edge, QRect(origin, bubble), tip};
}

QPainterPath PopoverPlacement::outline(qreal inset) const {
    QPainterPath path;
    path.addRoundedRect(QRectF(bubble).adjusted(inset, inset, -inset, -inset), cornerRadius - inset,
                        cornerRadius - inset);
    const QPointF along = isVertical(edge) ? QPointF(arrowWidth / 2.0, 0) : QPointF(0, arrowWidth / 2.0);
    const qreal away = edge == RectEdge::maxX || edge == RectEdge::maxY ? 1 : -1;
    const QPointF step = isVertical(edge) ? QPointF(0, away) : QPointF(away, 0);
    const QPointF point = tip + step * inset;
    const QPointF base = point + step * arrowLength;
    const QPointF inside = base + (base - point); // so that the parts overlap
    QPainterPath arrow;
    const QPointF shoulder = point + (base - point) * 0.2;
    arrow.moveTo(base - along);
    arrow.lineTo(shoulder - along * 0.2);
    arrow.quadTo(point, shoulder + along * 0.2);
    arrow.lineTo(base + along);
    arrow.lineTo(inside + along);
    arrow.lineTo(inside - along);
    arrow.closeSubpath();
    return path.united(arrow);
}

PopoverPlacement PopoverPlacement::translated(QPoint offset) const {
    return {edge, bubble.translated(offset), tip + offset};
}

} // namespace platform
