#include "Tidepool/Choices/StyledComboBoxCell.h"

#include "Platform/Graphics/Dimming.h"
#include "Tidepool/Buttons/CellDrawing.h"

#include <QPainter>

namespace tidepool {

using platform::CellContext;
using platform::Image;

namespace {

const Image& arrowImage(const ComboBoxStyle& style, bool isOpen) {
    static const Image none;
    const auto state = isOpen ? StyledControlState::on : StyledControlState::defaultState;
    const Image* const image = style.arrowImages().image(state);
    return image != nullptr ? *image : none;
}

} // namespace

const Image& StyledComboBoxCell::fieldImage(const CellContext& context) const {
    return styleOf(context).fieldImage();
}

QRectF StyledComboBoxCell::arrowRect(const QRectF& bounds, const CellContext& context) const {
    const qreal width = arrowImage(styleOf(context), false).size().width();
    const qreal left = context.direction == Qt::LeftToRight ? bounds.right() - width : bounds.left();
    return {left, bounds.top(), width, bounds.height()};
}

const QFont& StyledComboBoxCell::titleFont(const QFont&, const platform::CellStyle&) const {
    return Styles::Control::font();
}

QRectF StyledComboBoxCell::drawingRect(const QRectF& bounds, const CellContext& context) const {
    const QMarginsF& insets = styleOf(context).titleEdgeInsets();
    const qreal arrow = arrowRect(bounds, context).width();
    const bool isLeftToRight = context.direction == Qt::LeftToRight;
    return integral(bounds.adjusted(isLeftToRight ? insets.left() : arrow, insets.top(),
                                    isLeftToRight ? -arrow : -insets.left(), -insets.bottom()));
}

QColor StyledComboBoxCell::textColor(const CellContext& context) const {
    return styleOf(context).textColor(context.state);
}

QColor StyledComboBoxCell::placeholderColor(const CellContext& context) const {
    const QColor& color = styleOf(context).highlightedTextColor();
    return context.state.contains(StyledControlState::disabled) ? platform::dimmed(color) : color;
}

/// The field and the arrow meet at the arrow's edge, so that neither shows through the other.
void StyledComboBoxCell::drawFrame(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    const Image& arrow = arrowImage(styleOf(context), m_isPopupOpen);
    const float opacity = opacityOfBezel(context.state);
    const QColor tint = controlTextColor(context);
    const CellContext leftToRight{context.state, context.title, Qt::LeftToRight, context.style};
    const QRectF plate = arrowRect(frame, leftToRight);
    const QRectF place(frame.right() - arrow.size().width(), frame.top(), arrow.size().width(),
                       frame.height());
    painter.save();
    if (context.direction == Qt::RightToLeft)
        mirror(painter, frame);
    painter.save();
    painter.setClipRect(frame.adjusted(0, 0, -plate.width(), 0), Qt::IntersectClip);
    drawTinted(painter, frame, fieldImage(context), tint, opacity);
    painter.restore();
    painter.setClipRect(plate, Qt::IntersectClip);
    drawTinted(painter, place, arrow, tint, opacity);
    painter.restore();
}

void StyledComboBoxCell::drawFocus(QPainter& painter, const QRectF& bounds,
                                   const CellContext& context) const {
    drawFocusRing(painter, bounds, kitFocusRing(styleOf(context).focusRingColor(context.state)));
}

} // namespace tidepool
