#include "Tidepool/Menus/PopUpContextMenu.h"

#include "Platform/Controls/Menu.h"
#include "Platform/Controls/PushButton.h"

namespace tidepool {

void popUpContextMenu(platform::PushButton& button) {
    if (button.menu() != nullptr)
        platform::popUp(*button.menu(), nullptr, platform::below(button), button);
}

} // namespace tidepool
