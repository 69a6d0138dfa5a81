#include "Tidepool/Buttons/StyledButtonCell.h"

#include "Tidepool/Buttons/CellDrawing.h"

#include <QPainter>

namespace tidepool {

StyledControlState StyledButtonCell::controlState() const {
    return tidepool::controlState(*this, m_selected);
}

QRectF StyledButtonCell::focusRingMaskBounds(const QRectF& frame) const {
    return isFramed() ? frame : drawingRect(frame);
}

QRectF StyledButtonCell::drawingRect(const QRectF& bounds) const {
    return isFramed() ? integral(bounds.marginsRemoved(edgeInsets())) : bounds;
}

QRectF StyledButtonCell::imageRect(const QRectF& bounds) const {
    const QRectF inner = bounds.marginsRemoved(imageEdgeInsets());
    if (imagePosition() == platform::ImagePosition::imageOnly)
        return integral(inner);
    return integral(verticallyCentered(ButtonCell::imageRect(inner), bounds));
}

QRectF StyledButtonCell::titleRect(const QRectF& bounds) const {
    const QRectF inner = bounds.marginsRemoved(titleEdgeInsets());
    const QRectF title = ButtonCell::titleRect(inner);
    return integral(m_verticallyCenterTitle ? verticallyCentered(title, bounds) : title);
}

void StyledButtonCell::drawBezel(QPainter& painter, const QRectF& frame) const {
    tidepool::drawBezel(painter, frame, style().bezelImage(controlState()), *this);
}

void StyledButtonCell::drawTitle(QPainter& painter, const QRectF& frame) const {
    const QRgb color = style().textColor(controlState()).rgba();
    preparedTitle(style().font()).draw(painter, frame, {color, Qt::AlignHCenter, showsMnemonic()});
}

void StyledButtonCell::drawImage(QPainter& painter, const QRectF& frame) const {
    tidepool::drawImage(painter, frame, shownImage(), *this);
}

} // namespace tidepool
