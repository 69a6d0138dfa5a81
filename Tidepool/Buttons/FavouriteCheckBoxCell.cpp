#include "Tidepool/Buttons/FavouriteCheckBoxCell.h"

#include "Tidepool/Buttons/CellDrawing.h"

namespace tidepool {

namespace {

const platform::Image& imageOf(const platform::CellStyle& style, StyledControlState state) {
    static const platform::Image nothing;
    const platform::Image* image = static_cast<const CheckBoxCellStyle&>(style).buttonImage(state);
    return image != nullptr ? *image : nothing;
}

} // namespace

FavouriteCheckBoxCell::FavouriteCheckBoxCell() {
    setImagePosition(platform::ImagePosition::imageOnly);
}

const platform::Image& FavouriteCheckBoxCell::image(const platform::CellStyle& style) const {
    return imageOf(style, StyledControlState::defaultState);
}

const platform::Image& FavouriteCheckBoxCell::alternateImage(const platform::CellStyle& style) const {
    return imageOf(style, StyledControlState::on);
}

void FavouriteCheckBoxCell::drawImage(QPainter& painter, const QRectF& frame,
                                      const platform::CellContext& context) const {
    const platform::Image& star = shownImage(context);
    drawTinted(painter, imageFrame(star.size(), frame, imageScaling(), backingScale()), star,
               controlTextColor(context), opacityOfBezel(context.state));
}

} // namespace tidepool
