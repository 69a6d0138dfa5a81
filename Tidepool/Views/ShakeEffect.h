#pragma once

#include <QSizeF>
#include <QTransform>

namespace tidepool {

/// Shakes a view sideways, as one shakes one's head, while its progress runs from 0 to 1.
struct ShakeEffect {
    /// The largest offset, in points.
    double amount;
    /// Half oscillations over the whole animation; a whole number lets the view end where it began.
    double shakes;
    /// The progress, 0 to 1.
    double animatableData;

    /// The same for every size.
    QTransform effectValue(QSizeF size) const;
};

} // namespace tidepool
