#include "Tidepool/FavouriteCheckBox.h"

namespace tidepool {

FavouriteCheckBox::FavouriteCheckBox(QWidget* parent)
    : StyledCheckBox({}, std::make_unique<FavouriteCheckBoxCell>(), parent) {}

void FavouriteCheckBox::beginTracking(QMouseEvent& event) {
    constexpr qreal held = 0.5;
    setAlphaValue(held);
    StyledCheckBox::beginTracking(event);
}

void FavouriteCheckBox::endTracking() {
    setAlphaValue(1);
    StyledCheckBox::endTracking();
}

} // namespace tidepool
