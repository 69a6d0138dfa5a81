#include "Platform/Controls/PopoverPlacement.h"

#include "Platform/Graphics/DevicePixels.h"

#include <QTransform>

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

/// Turns that edge upwards, so that there is one way to draw the arrow.
QTransform edgeUp(RectEdge edge) {
    switch (edge) {
    case RectEdge::minX: // the arrow is at the right
        return {0, -1, 1, 0, 0, 0};
    case RectEdge::minY:
        return {1, 0, 0, -1, 0, 0};
    case RectEdge::maxX:
        return {0, 1, 1, 0, 0, 0};
    case RectEdge::maxY:
        break;
    }
    return {};
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
        const qreal corner = std::min(cornerRadius + arrowWidth / 2.0, length / 2.0);
        return std::clamp(value, start + corner, start + length - corner);
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

QPainterPath PopoverPlacement::outline(qreal inset, qreal scale) const {
    constexpr qreal steep = arrowLength + 1; // height and half the width of the arrow, had it a point
    const QTransform up = edgeUp(edge);
    const QRectF whole(onPixel(QRectF(bubble).topLeft(), scale),
                       onPixel(QRectF(bubble).bottomRight(), scale));
    const QRectF rect = up.mapRect(whole).marginsRemoved({inset, inset, inset, inset});
    const qreal radius = cornerRadius - inset;
    const qreal flare = std::clamp<qreal>(rect.width() / 2 - radius - steep, 0, arrowWidth / 2.0 - steep);
    const QPointF base(up.map(tip).x(), rect.top());
    const auto at = [&](qreal x, qreal y) { return base + QPointF(x, y); };
    const QSizeF corner(2 * radius, 2 * radius);
    const QPointF far(rect.right() - corner.width(), rect.bottom() - corner.height());
    QPainterPath path(at(-steep - flare, 0));
    path.quadTo(at(-steep, 0), at(-steep + flare * 0.7, -flare * 0.7));
    path.lineTo(at(-2, 2 - steep));
    path.quadTo(at(0, -steep), at(2, 2 - steep));
    path.lineTo(at(steep - flare * 0.7, -flare * 0.7));
    path.quadTo(at(steep, 0), at(steep + flare, 0));
    path.arcTo({{far.x(), rect.top()}, corner}, 90, -90);
    path.arcTo({far, corner}, 0, -90);
    path.arcTo({{rect.left(), far.y()}, corner}, -90, -90);
    path.arcTo({rect.topLeft(), corner}, 180, -90);
    path.closeSubpath();
    return up.inverted().map(path);
}

PopoverPlacement PopoverPlacement::translated(QPoint offset) const {
    return {edge, bubble.translated(offset), tip + offset};
}

} // namespace platform
