#pragma once

namespace platform {
class PushButton;
}

namespace tidepool {

/// Opens the menu of `button` below it. A button without a menu does nothing. Main thread.
void popUpContextMenu(platform::PushButton& button);

} // namespace tidepool
