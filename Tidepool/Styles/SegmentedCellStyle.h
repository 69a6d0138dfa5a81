#pragma once

#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Segmented controls.
class SegmentedCellStyle : public ControlStyle {
public:
    SegmentedCellStyle();

    TP_STYLE_FIELD(QMarginsF, segmentPadding, setSegmentPadding, 21, 0, 21, 0)
    TP_STYLE_FIELD(QMarginsF, segmentMargin, setSegmentMargin)
};

} // namespace tidepool
