#include "Tidepool/Choices/StyledMenuButtonCell.h"

#include "Platform/Graphics/Dimming.h"
#include "Tidepool/Buttons/CellDrawing.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace tidepool {

using platform::CellContext;
using platform::ImagePosition;

namespace {

// Points.
constexpr qreal titleMargin = 10;
constexpr qreal leastArrowsWidth = 14;
constexpr qreal titleHeight = 14;
/// Between a title that fits and the arrows.
constexpr qreal arrowsGap = 6;

/// `from` points after where lines begin in `rect`, and `width` wide.
QRectF inLine(const QRectF& rect, qreal from, qreal width, Qt::LayoutDirection direction) {
    const qreal left = direction == Qt::LeftToRight ? rect.left() + from : rect.right() - from - width;
    return {left, rect.top(), width, rect.height()};
}

/// Quieter than the title in every state.
QColor labelColor(StyledControlState state, const MenuButtonCellStyle& style) {
    if (state.contains(StyledControlState::disabled))
        return style.disabledLabelTextColor();
    const QColor& color = style.labelTextColor();
    return state.contains(StyledControlState::highlighted) ? platform::dimmed(color) : color;
}

} // namespace

const platform::Image* StyledMenuButtonCell::bezel(const CellContext& context) const {
    return isBordered() ? styleOf(context).bezelImage(context.state) : nullptr;
}

QRectF StyledMenuButtonCell::focusRingMaskBounds(const QRectF& frame, const CellContext& context) const {
    // As far around the face as the ring of a push button: its drawing keeps less room above and below.
    constexpr qreal pushButtonMargin = 2;
    const qreal inset = styleOf(context).alignmentRectInsets().top() - pushButtonMargin;
    return inset > 0 ? frame.adjusted(0, inset, 0, -inset) : frame;
}

StyledControlState StyledMenuButtonCell::controlState(StyledControlState ofControl) const {
    return StyledCell::controlState(ofControl).with(StyledControlState::focused, false);
}

const QFont& StyledMenuButtonCell::titleFont(const QFont&, const platform::CellStyle&) const {
    return hasLabel() ? Styles::Control::mediumFont() : Styles::Control::font();
}

QRectF StyledMenuButtonCell::titleRect(const QRectF& bounds, const CellContext& context) const {
    if (imagePosition() == ImagePosition::imageOnly || context.title.text().isEmpty())
        return {};
    const qreal width = std::max(0.0, bounds.width() - titleMargin - leastArrowsWidth);
    QRectF line = inLine(bounds, titleMargin, width, context.direction);
    line.setHeight(titleHeight);
    return integral(verticallyCentered(line, bounds));
}

QSizeF StyledMenuButtonCell::cellSize(const CellContext& context) const {
    const qreal title = context.title.size().width() + (hasLabel() ? labelAdvance() : 0);
    const platform::Image* const image = bezel(context);
    const QSizeF least = image != nullptr ? image->size() : QSizeF(0, titleHeight);
    return least.expandedTo({titleMargin + title + arrowsGap + leastArrowsWidth, 0});
}

const platform::PreparedText& StyledMenuButtonCell::shownLabel() const {
    m_shownLabel.set(*m_label, Styles::Control::font(), platform::PreparedText::Ampersands::areText);
    return m_shownLabel;
}

/// How far the title lies behind the beginning of the label.
qreal StyledMenuButtonCell::labelAdvance() const {
    return shownLabel().advance() + QFontMetricsF(Styles::Control::font()).horizontalAdvance(u' ');
}

void StyledMenuButtonCell::drawBezel(QPainter& painter, const QRectF& frame,
                                     const CellContext& context) const {
    const platform::Image* const image = bezel(context);
    if (image == nullptr)
        return;
    painter.save();
    if (context.direction == Qt::RightToLeft)
        mirror(painter, frame);
    drawTinted(painter, frame, *image, controlTextColor(context), opacityOfBezel(context.state));
    painter.restore();
}

void StyledMenuButtonCell::drawTitle(QPainter& painter, const QRectF& frame,
                                     const CellContext& context) const {
    const auto alignment = context.direction == Qt::LeftToRight ? Qt::AlignLeft : Qt::AlignRight;
    const MenuButtonCellStyle& style = styleOf(context);
    qreal used = 0;
    if (hasLabel()) {
        shownLabel().draw(painter, frame,
                          {.color = labelColor(context.state, style).rgba(), .alignment = alignment});
        used = labelAdvance();
    }
    if (used < frame.width())
        context.title.draw(painter, inLine(frame, used, frame.width() - used, context.direction),
                           {.color = style.textColor(context.state).rgba(), .alignment = alignment});
}

void StyledMenuButtonCell::drawFocus(QPainter& painter, const QRectF& bounds,
                                     const CellContext& context) const {
    drawFocusRing(painter, bounds, kitFocusRing(styleOf(context).focusRingColor(context.state)));
}

} // namespace tidepool
