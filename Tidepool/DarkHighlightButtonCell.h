#pragma once

#include "Platform/Controls/ButtonCell.h"

namespace tidepool {

/// An image alone, half as opaque while it is pressed or disabled.
class DarkHighlightButtonCell : public platform::ButtonCell {
public:
    DarkHighlightButtonCell();

    void drawImage(QPainter& painter, const QRectF& frame) const override;
};

} // namespace tidepool
