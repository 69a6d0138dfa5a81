#pragma once

#include "Platform/Controls/ButtonCell.h"

namespace tidepool {

/// An image alone, half as opaque while it is pressed.
class CursorButtonCell : public platform::ButtonCell {
public:
    CursorButtonCell();

    void draw(QPainter& painter, const QRectF& frame) const override;
};

} // namespace tidepool
