#include "Tidepool/PopUpContextMenu.h"

#include "Platform/Controls/ContextMenu.h"
#include "Platform/Controls/PopUpButton.h"

namespace tidepool {

void popUpContextMenu(QAbstractButton& button) {
    const auto* const popUpButton = qobject_cast<platform::PopUpButton*>(&button);
    auto* const menu = popUpButton != nullptr ? popUpButton->menu() : platform::contextMenu(button);
    if (menu != nullptr)
        menu->popUp(nullptr, QPoint(0, button.height()), button);
}

} // namespace tidepool
