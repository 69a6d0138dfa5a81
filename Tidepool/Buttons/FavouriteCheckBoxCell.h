#pragma once

#include "Tidepool/Buttons/StyledCheckBoxCell.h"

namespace tidepool {

/// An empty star, and a full one while it is on.
class FavouriteCheckBoxCell : public StyledCheckBoxCell {
public:
    FavouriteCheckBoxCell();

    const FavouriteCheckBoxCellStyle& style() const override {
        return resolvedStyle<FavouriteCheckBoxCellStyle>();
    }

    const platform::Image& image() const override;
    const platform::Image& alternateImage() const override;

    /// Not dimmed while it is pressed: its control is.
    void drawImage(QPainter& painter, const QRectF& frame) const override;
};

} // namespace tidepool
