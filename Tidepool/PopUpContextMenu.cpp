#include "Tidepool/PopUpContextMenu.h"

#include "Platform/Controls/Menu.h"
#include "Platform/Controls/PushButton.h"

namespace tidepool {

void popUpContextMenu(platform::PushButton& button) {
    if (button.menu() != nullptr)
        platform::popUp(*button.menu(), nullptr, QPoint(0, button.height()), button);
}

} // namespace tidepool
