#include "Tidepool/Events/FocusOnOutput.h"

namespace tidepool {

void focus(QWidget* view) {
    if (view == nullptr || !view->window()->isVisible())
        return;
    if (!view->isActiveWindow())
        view->activateWindow();
    view->setFocus(Qt::OtherFocusReason);
}

} // namespace tidepool
