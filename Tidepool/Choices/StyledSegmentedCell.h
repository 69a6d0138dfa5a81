#pragma once

#include "Tidepool/Choices/SegmentedCell.h"
#include "Tidepool/Styles/SegmentedCellStyle.h"
#include "Tidepool/Styles/StyledCell.h"

#include <map>

namespace tidepool {

/// Segments that look like the tabs of a window.
class StyledSegmentedCell : public StyledCell<SegmentedCellStyle, SegmentedCell> {
public:
    using SegmentedCell::isSelected;
    using SegmentedCell::setSelected;

    /// Whether what is selected is drawn like the rest.
    bool hideSelection() const { return m_hideSelection; }

    void setHideSelection(bool hides) { set(m_hideSelection, hides); }

    /// Of a segment with a label `width` counts for nothing: it becomes as wide as the label and the style's
    /// padding.
    void setWidth(qreal width, int forSegment) override;

    /// Where each segment was last drawn.
    const std::map<int, QRectF>& cachedSegmentFrames() const { return m_cachedSegmentFrames; }

    /// What a segment looks like in a control with this context.
    StyledControlState segmentState(int segment, const platform::CellContext& context) const;

    QRectF bezelRect(int segment, const QRectF& frame, const platform::CellContext& context) const;

    /// The bezel of the key segment where it was last drawn; empty before.
    QRectF focusRingMaskBounds(const platform::CellContext& context) const;

    const QFont& titleFont(const QFont& ofControl, const platform::CellStyle& style) const override;
    void draw(QPainter& painter, const QRectF& frame, const platform::CellContext& context) const override;

    /// Each segment has drawn its own, below its label.
    void drawFocus(QPainter&, const QRectF&, const platform::CellContext&) const override {}

protected:
    QSizeF contentSize(int segment, const platform::CellContext& context) const override;

    virtual void drawSegment(QPainter& painter, int segment, const QRectF& frame,
                             const platform::CellContext& context) const;

private:
    /// What a segment shows of a press and of the selection; pressed ones are drawn highlighted.
    enum class HighlightPhase { normal = 0, pressed = 1, selected = 3, pressedWhileSelected = 4 };

    HighlightPhase highlightPhase(int segment) const;
    void drawContent(QPainter& painter, int segment, const QRectF& frame,
                     const platform::CellContext& context) const;

    bool m_hideSelection = false;
    mutable std::map<int, QRectF> m_cachedSegmentFrames;
};

} // namespace tidepool
