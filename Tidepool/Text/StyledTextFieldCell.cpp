#include "Tidepool/Text/StyledTextFieldCell.h"

#include "Platform/Controls/FocusRing.h"
#include "Platform/Text/FieldEditor.h"
#include "Tidepool/Buttons/CellDrawing.h"

#include <QPainter>

namespace tidepool {

using platform::CellContext;

const QFont& StyledTextFieldCell::titleFont(const QFont&, const platform::CellStyle& style) const {
    return static_cast<const TextFieldCellStyle&>(style).font();
}

const platform::Image* StyledTextFieldCell::bezel(const CellContext& context) const {
    return isFramed() ? styleOf(context).bezelImage(context.state) : nullptr;
}

QRectF StyledTextFieldCell::drawingRect(const QRectF& bounds, const CellContext& context) const {
    return isFramed() ? integral(bounds.marginsRemoved(styleOf(context).padding())) : bounds;
}

QRectF StyledTextFieldCell::titleRect(const QRectF& bounds, const CellContext& context) const {
    QRectF line = TextFieldCell::titleRect(bounds, context);
    if (!m_verticallyCenter)
        line.moveTop(drawingRect(bounds, context).top());
    return line;
}

qreal StyledTextFieldCell::titleShift(const CellContext&) const {
    return isFramed() ? platform::FieldEditor::margin : -1 / backingScale();
}

QColor StyledTextFieldCell::textColor(const CellContext& context) const {
    return styleOf(context).textColor(context.state);
}

QColor StyledTextFieldCell::placeholderColor(const CellContext& context) const {
    QColor color = styleOf(context).placeholderTextColor();
    color.setAlphaF(color.alphaF() * opacityOfBezel(context.state));
    return color;
}

void StyledTextFieldCell::drawBezel(QPainter& painter, const QRectF& frame,
                                    const CellContext& context) const {
    if (!isFramed())
        painter.fillRect(frame, styleOf(context).textBackgroundColor());
    else if (const platform::Image* image = bezel(context))
        drawTinted(painter, frame, *image, controlTextColor(context), opacityOfBezel(context.state));
}

void StyledTextFieldCell::drawFrame(QPainter& painter, const QRectF& frame,
                                    const CellContext& context) const {
    drawBezel(painter, frame, context);
    constexpr QMarginsF inset(2, 2, 2, 2);
    if (context.state.contains(StyledControlState::focused))
        drawFocusRing(painter, frame.marginsRemoved(inset),
                      kitFocusRing(styleOf(context).focusRingColor(context.state)));
}

} // namespace tidepool
