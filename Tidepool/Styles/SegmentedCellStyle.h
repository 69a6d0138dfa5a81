#pragma once

#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Segmented controls.
class SegmentedCellStyle : public ControlStyle {
public:
    SegmentedCellStyle();

    virtual const QMarginsF& segmentPadding() const { return m_segmentPadding; }

    void setSegmentPadding(QMarginsF value) { m_segmentPadding = value; }

    virtual const QMarginsF& segmentMargin() const { return m_segmentMargin; }

    void setSegmentMargin(QMarginsF value) { m_segmentMargin = value; }

private:
    QMarginsF m_segmentPadding;
    QMarginsF m_segmentMargin;
};

} // namespace tidepool
