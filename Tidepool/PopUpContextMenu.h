#pragma once

class QAbstractButton;

namespace tidepool {

/// Opens the menu of `button` below it: the pop-up button's own, else the one that `platform::setContextMenu`
/// gave it. A button without a menu does nothing. Main thread.
void popUpContextMenu(QAbstractButton& button);

} // namespace tidepool
