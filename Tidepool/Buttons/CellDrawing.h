#pragma once

#include "Platform/Controls/CellTypes.h"
#include "Platform/Controls/FocusRing.h"
#include "Platform/Graphics/Image.h"
#include "Tidepool/Styles/StyledControlState.h"

#include <QRectF>

namespace tidepool {

// What the kit's cells draw with. Rectangles are points in the control's coordinates.

/// The smallest rectangle on whole points around `rect`.
QRectF integral(const QRectF& rect);

/// `rect` moved so that its middle is that of the height of `bounds`, on a whole point.
QRectF verticallyCentered(QRectF rect, const QRectF& bounds);

/// Where an image of `size` is drawn within `frame`. A scaling that is none of the four stops the program.
QRectF imageFrame(QSizeF size, const QRectF& frame, platform::ImageScaling scaling, qreal backingScale);

/// How opaque a bezel is drawn: dimmed while the control is disabled.
float opacityOfBezel(StyledControlState state);

/// How opaque an image is drawn: dimmed while the control is disabled or highlighted.
float opacityOfImage(StyledControlState state);

/// Fills `frame` with `image`, a template in the colour `tint`.
void drawTinted(QPainter& painter, const QRectF& frame, const platform::Image& image, const QColor& tint,
                float opacity);

/// Lets what is drawn next appear in `frame` as in a mirror.
void mirror(QPainter& painter, const QRectF& frame);

/// The ring around what has the keyboard.
platform::FocusRing kitFocusRing(const QColor& color);

} // namespace tidepool
