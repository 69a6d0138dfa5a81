#include "Tidepool/Buttons/FavouriteCheckBox.h"

#include "Platform/Graphics/Dimming.h"

#include <QPainter>

namespace tidepool {

namespace {

constexpr qreal held = platform::dimmedOpacity;

} // namespace

FavouriteCheckBox::FavouriteCheckBox(QWidget* parent)
    : StyledCheckBox({}, std::make_unique<FavouriteCheckBoxCell>(), parent) {}

void FavouriteCheckBox::draw(QPainter& painter) {
    if (isDown() && !isTracking())
        painter.setOpacity(painter.opacity() * held);
    StyledCheckBox::draw(painter);
}

void FavouriteCheckBox::beginTracking(QMouseEvent& event) {
    setAlphaValue(held);
    StyledCheckBox::beginTracking(event);
}

void FavouriteCheckBox::endTracking() {
    setAlphaValue(1);
    StyledCheckBox::endTracking();
}

} // namespace tidepool
