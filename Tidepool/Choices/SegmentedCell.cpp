#include "Tidepool/Choices/SegmentedCell.h"

#include "Platform/Core/FatalError.h"
#include "Tidepool/Choices/SegmentAnnouncements.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace tidepool {

namespace {

int kept(int segment, int count) {
    return segment < count ? segment : -1;
}

} // namespace

const Segment& SegmentedCell::segment(int index) const {
    if (index < 0 || index >= segmentCount())
        platform::fatalError("There is no segment " + std::to_string(index));
    return m_segments[static_cast<std::size_t>(index)];
}

Segment& SegmentedCell::mutableSegment(int index) {
    return const_cast<Segment&>(segment(index));
}

void SegmentedCell::setSegmentCount(int count) {
    if (count < 0)
        platform::fatalError("The number of segments cannot be negative");
    if (count == segmentCount())
        return;
    m_segments.resize(static_cast<std::size_t>(count));
    m_selectedSegment = kept(m_selectedSegment, count);
    m_keySegment = kept(m_keySegment, count);
    m_highlightedSegment = kept(m_highlightedSegment, count);
    changed();
    announceSegments(controlView());
}

void SegmentedCell::setLabel(const QString& label, int forSegment) {
    set(mutableSegment(forSegment).label, label);
    announceName(controlView(), forSegment);
}

void SegmentedCell::setImage(platform::Image image, int forSegment) {
    mutableSegment(forSegment).image = std::move(image);
    changed();
}

void SegmentedCell::setWidth(qreal width, int forSegment) {
    set(mutableSegment(forSegment).width, width);
}

void SegmentedCell::setEnabled(bool enabled, int forSegment) {
    if (segment(forSegment).isEnabled == enabled)
        return;
    set(mutableSegment(forSegment).isEnabled, enabled);
    if (!enabled && m_highlightedSegment == forSegment)
        setHighlightedSegment(-1);
    announceEnabled(controlView(), forSegment);
}

void SegmentedCell::setToolTip(const QString& toolTip, int forSegment) {
    mutableSegment(forSegment).toolTip = toolTip;
}

void SegmentedCell::setMenu(QMenu* menu, int forSegment) {
    mutableSegment(forSegment).menu = menu;
    changed();
}

void SegmentedCell::setTrackingMode(SegmentTracking mode) {
    m_trackingMode = mode;
    if (mode != SegmentTracking::selectAny)
        setSelectedSegment(mode == SegmentTracking::momentary ? -1 : m_selectedSegment);
}

void SegmentedCell::mark(int index, bool selected) {
    if (segment(index).isSelected == selected)
        return;
    set(mutableSegment(index).isSelected, selected);
    announceSelected(controlView(), index);
}

void SegmentedCell::setSelected(bool selected, int forSegment) {
    if (m_trackingMode == SegmentTracking::selectOne && selected) {
        setSelectedSegment(forSegment);
        return;
    }
    mark(forSegment, selected && m_trackingMode != SegmentTracking::momentary);
    if (selected)
        m_selectedSegment = forSegment;
    else if (m_selectedSegment == forSegment)
        m_selectedSegment = -1;
}

void SegmentedCell::setSelectedSegment(int segment) {
    if (segment >= 0)
        static_cast<void>(this->segment(segment)); // it has to be there
    m_selectedSegment = segment;
    for (int i = 0; i < segmentCount(); ++i)
        mark(i, i == segment && m_trackingMode != SegmentTracking::momentary);
}

void SegmentedCell::select(int segment) {
    if (m_trackingMode == SegmentTracking::selectAny)
        setSelected(!isSelected(segment), segment);
    else
        setSelectedSegment(segment);
}

void SegmentedCell::setKeySegment(int segment) {
    if (segment == m_keySegment)
        return;
    set(m_keySegment, segment);
    announceFocus(controlView(), segment);
}

int SegmentedCell::enabledSegment(int from, int step) const {
    while (from >= 0 && from < segmentCount() && !segment(from).isEnabled)
        from += step;
    return from < segmentCount() ? std::max(from, -1) : -1;
}

void SegmentedCell::setHighlightedSegment(int segment) {
    set(m_highlightedSegment, segment);
}

const platform::PreparedText& SegmentedCell::preparedLabel(int index,
                                                           const platform::CellStyle& style) const {
    const Segment& segment = this->segment(index);
    const bool hasAmpersand = segment.label.contains(u'&'); // which would mark a mnemonic
    segment.prepared.set(hasAmpersand ? QString(segment.label).replace(u'&', QStringLiteral("&&"))
                                      : segment.label,
                         titleFont({}, style));
    return segment.prepared;
}

qreal SegmentedCell::naturalWidth(int segment, const platform::CellContext& context) const {
    const qreal width = this->segment(segment).width;
    return width > 0 ? width : contentSize(segment, context).width();
}

QSizeF SegmentedCell::cellSize(const platform::CellContext& context) const {
    QSizeF size(0, 0);
    for (int i = 0; i < segmentCount(); ++i)
        size = {size.width() + naturalWidth(i, context),
                std::max(size.height(), contentSize(i, context).height())};
    return {std::ceil(size.width()), size.height()};
}

SegmentedCell::Frames SegmentedCell::segmentFrames(const QRectF& bounds,
                                                   const platform::CellContext& context) const {
    const qreal natural = cellSize(context).width();
    const auto flexible =
        std::count_if(m_segments.begin(), m_segments.end(), [](const Segment& s) { return s.width <= 0; });
    const qreal spare = std::max(0.0, bounds.width() - natural);
    const qreal share = flexible > 0 ? spare / static_cast<qreal>(flexible) : 0;
    const qreal shrink = natural > bounds.width() ? bounds.width() / natural : 1;
    Frames frames;
    qreal end = 0;
    for (int i = 0; i < segmentCount(); ++i) {
        const qreal start = std::round(end);
        end += naturalWidth(i, context) * shrink + (segment(i).width > 0 ? 0 : share);
        const qreal width = std::round(end) - start;
        const qreal x =
            context.direction == Qt::RightToLeft ? bounds.right() - start - width : bounds.left() + start;
        frames.append({x, bounds.top(), width, bounds.height()});
    }
    return frames;
}

int SegmentedCell::segmentAt(QPointF point, const QRectF& bounds,
                             const platform::CellContext& context) const {
    const Frames frames = segmentFrames(bounds, context);
    const auto found = std::find_if(frames.begin(), frames.end(),
                                    [&](const QRectF& frame) { return frame.contains(point); });
    return found == frames.end() ? -1 : static_cast<int>(found - frames.begin());
}

} // namespace tidepool
