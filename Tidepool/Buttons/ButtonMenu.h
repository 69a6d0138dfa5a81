#pragma once

#include <QPoint>

class QMouseEvent;
class QWidget;

namespace tidepool {

/// True for the right button, and for the left one with the Control key.
bool asksForMenu(const QMouseEvent& press);

/// Where a menu opens under `view`, in its coordinates: where lines begin, 4 points below it.
QPoint positionUnder(const QWidget& view);

} // namespace tidepool
