#pragma once

#include "Tidepool/Buttons/ImageButtonCell.h"

namespace tidepool {

/// An image alone, half as opaque while it is pressed or disabled.
class DarkHighlightButtonCell : public ImageButtonCell {
public:
    void drawImage(QPainter& painter, const QRectF& frame) const override;
};

} // namespace tidepool
