#pragma once

#include "Platform/Controls/ButtonCell.h"
#include "Tidepool/Styles/StyledControlState.h"

#include <QColor>

namespace tidepool {

// What the kit's cells draw with. Rectangles are points in the control's coordinates.

/// The state that a button's cell is in.
StyledControlState controlState(const platform::ButtonCell& cell, bool isSelected);

/// The smallest rectangle on whole points around `rect`.
QRectF integral(const QRectF& rect);

/// `rect` moved so that its middle is that of the height of `bounds`, on a whole point.
QRectF verticallyCentered(QRectF rect, const QRectF& bounds);

/// Fills `frame` with `bezel`, a template in the colour of a control's text; half as opaque while the cell is
/// disabled. Null draws nothing.
void drawBezel(QPainter& painter, const QRectF& frame, const platform::Image* bezel,
               const platform::Cell& cell);

/// Where an image of `size` is drawn within `frame`. A scaling that is none of the four stops the program.
QRectF imageFrame(QSizeF size, const QRectF& frame, platform::ImageScaling scaling, qreal backingScale);

/// Draws `image` with the cell's scaling, a template in the colour of a control's text; half as opaque while
/// the cell is highlighted or disabled.
void drawImage(QPainter& painter, const QRectF& frame, const platform::Image& image,
               const platform::ButtonCell& cell);

/// The ring around what has the keyboard, within `maskBounds`.
void drawFocusRing(QPainter& painter, const QRectF& maskBounds, const QColor& color);

} // namespace tidepool
