#include "Tidepool/Menus/PopUpContextMenu.h"

#include "Platform/Controls/Menu.h"
#include "Platform/Controls/PushButton.h"

namespace tidepool {

void popUpContextMenu(platform::PushButton& button) {
    const int start = button.isRightToLeft() ? button.width() : 0;
    if (button.menu() != nullptr)
        platform::popUp(*button.menu(), nullptr, QPoint(start, button.height()), button);
}

} // namespace tidepool
