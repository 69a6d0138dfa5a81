#pragma once

#include "Platform/Graphics/Image.h"
#include "Platform/Graphics/PreparedText.h"

#include <QMenu>
#include <QPointer>
#include <QString>

namespace tidepool {

/// What a click on a segment selects: this one alone; this one or not, beside the others; or nothing.
enum class SegmentTracking { selectOne, selectAny, momentary };

/// One segment of a `SegmentedCell`.
struct Segment {
    QString label;
    platform::Image image;
    qreal width = 0; // in points; 0 for that of the content
    bool isEnabled = true;
    bool isSelected = false;
    QString toolTip;
    QPointer<QMenu> menu; // not owned
    mutable platform::PreparedText prepared;
};

} // namespace tidepool
