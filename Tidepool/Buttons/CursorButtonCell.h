#pragma once

#include "Tidepool/Buttons/ImageButtonCell.h"

namespace tidepool {

/// An image alone, half as opaque while it is pressed.
class CursorButtonCell : public ImageButtonCell {
public:
    void draw(QPainter& painter, const QRectF& frame) const override;
};

} // namespace tidepool
