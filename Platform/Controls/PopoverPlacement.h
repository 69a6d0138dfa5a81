#pragma once

#include <QPainterPath>
#include <QRect>

namespace platform {

/// An edge of a view; y grows downwards.
enum class RectEdge { minX = 0, minY = 1, maxX = 2, maxY = 3 };

/// Where a popover stands. Points, all in the same coordinates.
struct PopoverPlacement {
    static constexpr int arrowLength = 7;
    /// Where it meets the bubble.
    static constexpr int arrowWidth = 22;
    static constexpr int cornerRadius = 8;

    /// Beside which edge of its anchor.
    RectEdge edge = RectEdge::maxY;
    /// Without the arrow.
    QRect bubble;
    /// Of the arrow, at the anchor's edge.
    QPointF tip;

    /// At the preferred edge of `anchor` if there is room on the `screen`, else at the opposite one, or
    /// where there is more; along the edge as far as the screen allows.
    static PopoverPlacement beside(const QRect& anchor, QSize bubble, RectEdge preferred,
                                   const QRect& screen);

    /// The bubble with its arrow, or what lies `inset` points inside of it, with edges between the pixels of
    /// `scale` a point.
    QPainterPath outline(qreal inset = 0, qreal scale = 1) const;

    PopoverPlacement translated(QPoint offset) const;

    friend bool operator==(const PopoverPlacement&, const PopoverPlacement&) = default;
};

} // namespace platform
