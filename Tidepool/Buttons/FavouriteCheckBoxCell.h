#pragma once

#include "Tidepool/Buttons/StyledCheckBoxCell.h"

namespace tidepool {

/// An empty star, and a full one while it is on.
class FavouriteCheckBoxCell : public RestyledCell<FavouriteCheckBoxCellStyle, StyledCheckBoxCell> {
public:
    FavouriteCheckBoxCell();

    const platform::Image& image(const platform::CellStyle& style) const override;
    const platform::Image& alternateImage(const platform::CellStyle& style) const override;

    /// Not dimmed while it is pressed: its control is.
    void drawImage(QPainter& painter, const QRectF& frame,
                   const platform::CellContext& context) const override;
};

} // namespace tidepool
