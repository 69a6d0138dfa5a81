#include "Tidepool/Buttons/StyledCheckBoxCell.h"

#include "Platform/Controls/CellLayout.h"
#include "Tidepool/Buttons/CellDrawing.h"

namespace tidepool {

StyledCheckBoxCell::StyledCheckBoxCell() {
    setButtonType(ButtonType::switchButton);
    setBordered(false);
}

platform::ControlState StyledCheckBoxCell::nextState() const {
    return state() == platform::ControlState::on ? platform::ControlState::off : platform::ControlState::on;
}

QSizeF StyledCheckBoxCell::imageSize() const {
    const platform::Image* image = style().buttonImage(controlState());
    return image != nullptr ? image->size() : QSizeF();
}

QRectF StyledCheckBoxCell::imageRect(const QRectF& bounds) const {
    return integral(verticallyCentered(arranged(bounds).image, bounds)).translated(m_xOffset, 0);
}

QRectF StyledCheckBoxCell::titleRect(const QRectF& bounds) const {
    QRectF title = arranged(bounds).title;
    const qreal width = preparedTitle(style().font()).size().width();
    if (layoutDirection() == Qt::RightToLeft)
        title.setLeft(title.right() - width);
    else
        title.setWidth(width);
    return verticallyCenterTitle() ? verticallyCentered(title, bounds) : title;
}

void StyledCheckBoxCell::drawImage(QPainter& painter, const QRectF& frame) const {
    if (const platform::Image* image = style().buttonImage(controlState()))
        tidepool::drawImage(painter, frame, *image, *this);
}

} // namespace tidepool
