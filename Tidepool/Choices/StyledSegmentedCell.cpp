#include "Tidepool/Choices/StyledSegmentedCell.h"

#include "Platform/Controls/CellLayout.h"
#include "Platform/Graphics/Dimming.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/CellDrawing.h"
#include "Tidepool/Choices/TabFocus.h"

#include <QPainter>

#include <algorithm>

namespace tidepool {

using platform::CellContext;

namespace {

/// What content that is too long keeps free at either side.
constexpr qreal leastPadding = 8;

platform::CellContent contentOf(const Segment& segment, const platform::PreparedText& label,
                                Qt::LayoutDirection direction) {
    return {.image = segment.image.isNull() ? QSizeF(0, 0) : segment.image.size(),
            .title = segment.label.isEmpty() ? QSizeF(0, 0) : label.size(),
            .direction = direction};
}

void drawMenuMark(QPainter& painter, const QRectF& bezel, const QColor& color, float opacity,
                  Qt::LayoutDirection direction) {
    const platform::Image& more = Images::cornerToolMore;
    QRectF mark(QPointF(), more.size());
    constexpr QPointF margin(4, 5); // inside the bezel's edge
    mark.moveBottomRight(bezel.bottomRight() - margin);
    painter.save();
    if (direction == Qt::RightToLeft)
        mirror(painter, bezel);
    drawTinted(painter, mark, more, color, opacity);
    painter.restore();
}

} // namespace

void StyledSegmentedCell::setWidth(qreal width, int forSegment) {
    const SegmentedCellStyle& style = this->style();
    const QMarginsF& padding = style.segmentPadding();
    if (!segment(forSegment).label.isEmpty())
        width = preparedLabel(forSegment, style).size().width() + padding.left() + padding.right();
    StyledCell::setWidth(width, forSegment);
}

StyledSegmentedCell::HighlightPhase StyledSegmentedCell::highlightPhase(int segment) const {
    if (segment == highlightedSegment())
        return isSelected(segment) ? HighlightPhase::pressedWhileSelected : HighlightPhase::pressed;
    return isSelected(segment) ? HighlightPhase::selected : HighlightPhase::normal;
}

StyledControlState StyledSegmentedCell::segmentState(int segment, const CellContext& context) const {
    using State = StyledControlState;
    const HighlightPhase phase = highlightPhase(segment);
    const bool isDisabled = context.state.contains(State::disabled) || !this->segment(segment).isEnabled;
    const bool isPressed = phase == HighlightPhase::pressed || phase == HighlightPhase::pressedWhileSelected;
    return State::defaultState.with(State::disabled, isDisabled)
        .with(State::highlighted, isPressed && !isDisabled)
        .with(State::selected, isSelected(segment) && !m_hideSelection);
}

QRectF StyledSegmentedCell::bezelRect(int segment, const QRectF& frame, const CellContext& context) const {
    const SegmentedCellStyle& style = styleOf(context);
    const QMarginsF& margin = style.segmentMargin();
    const platform::Image* const bezel = style.bezelImage(segmentState(segment, context));
    QRectF rect = frame.adjusted(margin.left(), 0, -margin.right(), 0);
    rect.setHeight((bezel != nullptr ? bezel->size().height() : 0) - margin.top() - margin.bottom());
    return integral(verticallyCentered(rect, frame));
}

QRectF StyledSegmentedCell::focusRingMaskBounds(const CellContext& context) const {
    const auto key = m_cachedSegmentFrames.find(keySegment());
    return key != m_cachedSegmentFrames.end() && key->first < segmentCount()
               ? bezelRect(key->first, key->second, context)
               : QRectF();
}

const QFont& StyledSegmentedCell::titleFont(const QFont&, const platform::CellStyle& style) const {
    return static_cast<const SegmentedCellStyle&>(style).font();
}

QSizeF StyledSegmentedCell::contentSize(int segment, const CellContext& context) const {
    const QSizeF content =
        naturalSize(contentOf(this->segment(segment), preparedLabel(segment, context.style), {}));
    return content.grownBy(styleOf(context).segmentPadding());
}

void StyledSegmentedCell::draw(QPainter& painter, const QRectF& frame, const CellContext& context) const {
    m_cachedSegmentFrames.erase(m_cachedSegmentFrames.lower_bound(segmentCount()),
                                m_cachedSegmentFrames.end());
    int segment = 0;
    for (const QRectF& segmentFrame : segmentFrames(frame, context))
        drawSegment(painter, segment++, segmentFrame, context);
}

void StyledSegmentedCell::drawSegment(QPainter& painter, int segment, const QRectF& frame,
                                      const CellContext& context) const {
    m_cachedSegmentFrames[segment] = frame;
    const SegmentedCellStyle& style = styleOf(context);
    const StyledControlState state = segmentState(segment, context);
    const QRectF bezel = bezelRect(segment, frame, context);
    if (const platform::Image* const image = style.bezelImage(state))
        drawTinted(painter, bezel, *image, controlTextColor(context), opacityOfBezel(state));
    if (segment == keySegment() && context.state.contains(StyledControlState::focused))
        drawFocusRing(painter, tabFocusFrame(bezel), kitFocusRing(style.focusRingColor(state)));
    drawContent(painter, segment, frame, context);
    if (this->segment(segment).menu != nullptr)
        drawMenuMark(painter, bezel, style.textColor(state), opacityOfBezel(state), context.direction);
}

void StyledSegmentedCell::drawContent(QPainter& painter, int index, const QRectF& frame,
                                      const CellContext& context) const {
    const Segment& segment = this->segment(index);
    const StyledControlState state = segmentState(index, context);
    // The bezel of a selected segment looks the same while it is pressed; its content says so.
    const bool isDimmed = state.contains(StyledControlState::selected | StyledControlState::highlighted);
    const QColor& text = styleOf(context).textColor(state);
    const QColor color = isDimmed ? platform::dimmed(text) : text;
    const platform::PreparedText& label = preparedLabel(index, context.style);
    const platform::CellFrames frames = arrange(contentOf(segment, label, context.direction),
                                                frame.adjusted(leastPadding, 0, -leastPadding, 0));
    if (!segment.image.isNull())
        drawTinted(painter,
                   imageFrame(segment.image.size(), frames.image, platform::ImageScaling::proportionallyDown,
                              backingScale()),
                   segment.image, text, isDimmed ? platform::dimmedOpacity : opacityOfBezel(state));
    if (!segment.label.isEmpty())
        label.draw(painter, frames.title, {.color = color.rgba()});
}

} // namespace tidepool
