#include "Tidepool/Buttons/CellDrawing.h"

#include "Platform/Core/FatalError.h"
#include "Platform/Graphics/Dimming.h"
#include "Tidepool/Palette/PixelAlignment.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tidepool {

namespace {

using platform::ImageScaling;

/// What is larger than the frame begins with it.
QRectF pushedInside(const QRectF& image, const QRectF& frame) {
    const qreal y = std::max(frame.top(), std::min(frame.bottom(), image.bottom()) - image.height());
    return {QPointF(keptInside(image, frame), y), image.size()};
}

} // namespace

QRectF integral(const QRectF& rect) {
    return QRectF(rect.toAlignedRect());
}

QRectF verticallyCentered(QRectF rect, const QRectF& bounds) {
    rect.moveTop(std::trunc(bounds.center().y() - rect.height() * 0.5));
    return rect;
}

QRectF imageFrame(QSizeF size, const QRectF& frame, ImageScaling scaling, qreal backingScale) {
    switch (scaling) {
    case ImageScaling::axesIndependently:
        return frame;
    case ImageScaling::none:
        return centered(size, frame, backingScale).translated(frame.topLeft()).intersected(frame);
    case ImageScaling::proportionallyDown:
    case ImageScaling::proportionallyUpOrDown:
        return pushedInside(centered(size, frame, backingScale).translated(frame.topLeft()), frame);
    }
    platform::fatalError("Unhandled image scaling value");
}

float opacityOfBezel(StyledControlState state) {
    return state.contains(StyledControlState::disabled) ? platform::dimmedOpacity : 1;
}

float opacityOfImage(StyledControlState state) {
    return state.intersects(StyledControlState::disabled | StyledControlState::highlighted)
               ? platform::dimmedOpacity
               : 1;
}

void drawTinted(QPainter& painter, const QRectF& frame, const platform::Image& image, const QColor& tint,
                float opacity) {
    if (image.isTemplate())
        image.tinted(tint).draw(painter, frame, opacity);
    else
        image.draw(painter, frame, opacity);
}

void mirror(QPainter& painter, const QRectF& frame) {
    painter.translate(frame.left() + frame.right(), 0);
    painter.scale(-1, 1);
}

platform::FocusRing kitFocusRing(const QColor& color) {
    return {.radius = 3, .color = color, .width = 2, .fill = 0.3F};
}

} // namespace tidepool
