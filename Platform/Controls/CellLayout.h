#pragma once

#include "Platform/Controls/CellTypes.h"

#include <QRectF>
#include <QSizeF>

namespace platform {

/// An image beside a title. An empty size is none.
struct CellContent {
    QSizeF image;
    QSizeF title;
    ImagePosition position = ImagePosition::imageLeading;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    /// Centred together, or at the leading edge.
    Qt::Alignment alignment = Qt::AlignHCenter;
};

struct CellFrames {
    QRectF image;
    QRectF title;
};

/// The smallest size that holds both, in points.
QSizeF naturalSize(const CellContent& content);

/// Both within `bounds`, in points: the image at its size, the title as long as there is room.
CellFrames arrange(const CellContent& content, const QRectF& bounds);

} // namespace platform
