#include "Tidepool/Buttons/PopUpCyclingButton.h"

#include "Platform/Controls/CurrentEvent.h"
#include "Platform/Controls/PopUpButton.h"
#include "Tidepool/Buttons/PopUpCyclingButtonCell.h"

namespace tidepool {

PopUpCyclingButton::PopUpCyclingButton(QWidget* parent)
    : CursorButton(std::make_unique<PopUpCyclingButtonCell>(), parent) {}

bool PopUpCyclingButton::sendAction(std::optional<platform::Selector> action, QObject* target) {
    if (qobject_cast<platform::PopUpButton*>(target) == nullptr)
        return CursorButton::sendAction(action, target);
    const auto event = platform::currentEvent();
    const bool goesBack = event && event->modifiers.testFlag(Qt::ShiftModifier);
    return platform::sendAction({goesBack ? "selectPreviousItem" : "selectNextItem"}, target, this);
}

} // namespace tidepool
