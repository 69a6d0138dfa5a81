#pragma once

#include "Platform/Controls/Cell.h"
#include "Tidepool/Choices/Segment.h"

#include <QVarLengthArray>

#include <vector>

namespace tidepool {

/// A row of segments: what each has, which are selected and where they stand. The look is up to those who
/// derive from it. Setters show the change and tell assistive technology. A segment that is not there stops
/// the program; -1 stands for none. Lengths are points.
class SegmentedCell : public platform::Cell {
public:
    int segmentCount() const { return static_cast<int>(m_segments.size()); }

    void setSegmentCount(int count); // new ones come last and are empty

    const Segment& segment(int index) const;

    void setLabel(const QString& label, int forSegment);
    void setImage(platform::Image image, int forSegment); // beside the label

    /// 0 for the width of the content, which may also grow with the control.
    virtual void setWidth(qreal width, int forSegment);

    void setEnabled(bool enabled, int forSegment);
    void setToolTip(const QString& toolTip, int forSegment);
    void setMenu(QMenu* menu, int forSegment);

    SegmentTracking trackingMode() const { return m_trackingMode; }

    void setTrackingMode(SegmentTracking mode); // takes a selection away that it does not allow

    bool isSelected(int segment) const { return this->segment(segment).isSelected; }

    void setSelected(bool selected, int forSegment); // momentary ones never are

    /// The last one that was selected and still is; of momentary ones, the last that was pressed.
    int selectedSegment() const { return m_selectedSegment; }

    /// That one alone from now on.
    void setSelectedSegment(int segment);
    void select(int segment); // as a click on it does

    /// The one that the keys act on.
    int keySegment() const { return m_keySegment; }

    void setKeySegment(int segment);

    /// The enabled one nearest to `from` in steps of `step`, 1 or -1, beginning with `from`.
    int enabledSegment(int from, int step) const;

    /// The one that is pressed, or whose menu is open.
    int highlightedSegment() const { return m_highlightedSegment; }

    void setHighlightedSegment(int segment);

    using Frames = QVarLengthArray<QRectF, 16>;

    /// Side by side on whole points, from where lines begin. They share what is left of `bounds` if their
    /// widths are not set, and shrink where it is too narrow.
    Frames segmentFrames(const QRectF& bounds, const platform::CellContext& context) const;

    int segmentAt(QPointF point, const QRectF& bounds, const platform::CellContext& context) const;

    QSizeF cellSize(const platform::CellContext& context) const override;

protected:
    /// What a segment takes if its width is not set.
    virtual QSizeF contentSize(int segment, const platform::CellContext& context) const = 0;

    /// The label, ready to be measured and drawn in the font of the style.
    const platform::PreparedText& preparedLabel(int segment, const platform::CellStyle& style) const;

private:
    Segment& mutableSegment(int index);
    void mark(int segment, bool selected);
    qreal naturalWidth(int segment, const platform::CellContext& context) const;

    std::vector<Segment> m_segments;
    SegmentTracking m_trackingMode = SegmentTracking::selectOne;
    int m_selectedSegment = -1;
    int m_keySegment = -1;
    int m_highlightedSegment = -1;
};

} // namespace tidepool
