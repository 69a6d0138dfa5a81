#pragma once

#include <QRectF>

namespace tidepool {

/// What the focus ring lies within when a tab is drawn into `bezel`: the drawing keeps room for its shadow.
inline QRectF tabFocusFrame(const QRectF& bezel) {
    return bezel.adjusted(1, 2, -1, -2);
}

} // namespace tidepool
