#include "Tidepool/Buttons/StyledButtonCell.h"

#include "Platform/Controls/FocusRing.h"
#include "Tidepool/Buttons/CellDrawing.h"

#include <QPainter>

namespace tidepool {

using platform::CellContext;

const QMarginsF& StyledButtonCell::imageEdgeInsets(const ButtonCellStyle& style) const {
    return style.imageEdgeInsets();
}

const QMarginsF& StyledButtonCell::titleEdgeInsets(const ButtonCellStyle& style) const {
    return style.titleEdgeInsets();
}

const QMarginsF& StyledButtonCell::edgeInsets(const ButtonCellStyle& style) const {
    return style.edgeInsets();
}

StyledControlState StyledButtonCell::controlState(StyledControlState ofControl) const {
    return StyledCell::controlState(ofControl).with(StyledControlState::focused, false);
}

const QFont& StyledButtonCell::titleFont(const QFont&, const platform::CellStyle& style) const {
    return static_cast<const ButtonCellStyle&>(style).font();
}

const platform::Image* StyledButtonCell::bezel(const CellContext& context) const {
    return isBordered() ? styleOf(context).bezelImage(context.state) : nullptr;
}

QRectF StyledButtonCell::focusRingMaskBounds(const QRectF& frame, const CellContext& context) const {
    return isFramed() ? frame : drawingRect(frame, context);
}

QRectF StyledButtonCell::drawingRect(const QRectF& bounds, const CellContext& context) const {
    return isFramed() ? integral(bounds.marginsRemoved(edgeInsets(styleOf(context)))) : bounds;
}

QRectF StyledButtonCell::imageRect(const QRectF& bounds, const CellContext& context) const {
    const QRectF inner = bounds.marginsRemoved(imageEdgeInsets(styleOf(context)));
    if (imagePosition() == platform::ImagePosition::imageOnly)
        return integral(inner);
    return integral(verticallyCentered(ButtonCell::imageRect(inner, context), bounds));
}

QRectF StyledButtonCell::titleRect(const QRectF& bounds, const CellContext& context) const {
    const QRectF inner = bounds.marginsRemoved(titleEdgeInsets(styleOf(context)));
    const QRectF title = ButtonCell::titleRect(inner, context);
    return integral(m_verticallyCenterTitle ? verticallyCentered(title, bounds) : title);
}

void StyledButtonCell::drawBezel(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    if (const platform::Image* bezel = styleOf(context).bezelImage(context.state))
        drawTinted(painter, frame, *bezel, controlTextColor(context), opacityOfBezel(context.state));
}

void StyledButtonCell::drawTitle(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    const QRgb color = styleOf(context).textColor(context.state).rgba();
    context.title.draw(painter, frame, {color, Qt::AlignHCenter, showsMnemonic(context)});
}

void StyledButtonCell::drawImage(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    const platform::Image& image = shownImage(context);
    drawTinted(painter, imageFrame(image.size(), frame, imageScaling(), backingScale()), image,
               controlTextColor(context), opacityOfImage(context.state));
}

void StyledButtonCell::drawFocus(QPainter& painter, const QRectF& bounds, const CellContext& context) const {
    drawFocusRing(painter, bounds, kitFocusRing(styleOf(context).focusRingColor(context.state)));
}

} // namespace tidepool
