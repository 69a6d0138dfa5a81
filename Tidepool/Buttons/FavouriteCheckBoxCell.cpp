#include "Tidepool/Buttons/FavouriteCheckBoxCell.h"

#include "Tidepool/Buttons/CellDrawing.h"

namespace tidepool {

namespace {

const platform::Image& imageOf(const CheckBoxCellStyle& style, StyledControlState state) {
    static const platform::Image nothing;
    const platform::Image* image = style.buttonImage(state);
    return image != nullptr ? *image : nothing;
}

} // namespace

FavouriteCheckBoxCell::FavouriteCheckBoxCell() {
    setImagePosition(platform::ImagePosition::imageOnly);
}

const platform::Image& FavouriteCheckBoxCell::image() const {
    return imageOf(style(), StyledControlState::defaultState);
}

const platform::Image& FavouriteCheckBoxCell::alternateImage() const {
    return imageOf(style(), StyledControlState::on);
}

void FavouriteCheckBoxCell::drawImage(QPainter& painter, const QRectF& frame) const {
    tidepool::drawBezel(painter, imageFrame(shownImage().size(), frame, imageScaling(), backingScale()),
                        &shownImage(), *this);
}

} // namespace tidepool
