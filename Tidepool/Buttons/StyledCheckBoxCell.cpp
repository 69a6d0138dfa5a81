#include "Tidepool/Buttons/StyledCheckBoxCell.h"

#include "Platform/Controls/CellLayout.h"
#include "Tidepool/Buttons/CellDrawing.h"

namespace tidepool {

using platform::CellContext;

StyledCheckBoxCell::StyledCheckBoxCell() {
    setButtonType(ButtonType::switchButton);
    setBordered(false);
}

platform::ControlState StyledCheckBoxCell::nextState(platform::ControlState state) const {
    return state == platform::ControlState::on ? platform::ControlState::off : platform::ControlState::on;
}

QSizeF StyledCheckBoxCell::imageSize(const CellContext& context) const {
    const platform::Image* image = styleOf(context).buttonImage(context.state);
    return image != nullptr ? image->size() : QSizeF();
}

QRectF StyledCheckBoxCell::imageRect(const QRectF& bounds, const CellContext& context) const {
    return integral(verticallyCentered(arranged(bounds, context).image, bounds)).translated(m_xOffset, 0);
}

QRectF StyledCheckBoxCell::titleRect(const QRectF& bounds, const CellContext& context) const {
    QRectF title = arranged(bounds, context).title;
    const qreal width = context.title.size().width();
    if (context.direction == Qt::RightToLeft)
        title.setLeft(title.right() - width);
    else
        title.setWidth(width);
    return verticallyCenterTitle() ? verticallyCentered(title, bounds) : title;
}

void StyledCheckBoxCell::drawImage(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    if (const platform::Image* image = styleOf(context).buttonImage(context.state))
        drawTinted(painter, imageFrame(image->size(), frame, imageScaling(), backingScale()), *image,
                   controlTextColor(context), opacityOfImage(context.state));
}

} // namespace tidepool
