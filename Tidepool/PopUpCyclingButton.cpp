#include "Tidepool/PopUpCyclingButton.h"

#include "Platform/Controls/PopUpButton.h"
#include "Tidepool/PopUpCyclingButtonCell.h"

#include <QGuiApplication>

namespace tidepool {

PopUpCyclingButton::PopUpCyclingButton(QWidget* parent)
    : CursorButton(std::make_unique<PopUpCyclingButtonCell>(), parent) {}

bool PopUpCyclingButton::sendAction(std::optional<platform::Selector> action, QObject* target) {
    if (qobject_cast<platform::PopUpButton*>(target) == nullptr)
        return CursorButton::sendAction(action, target);
    const bool goesBack = QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
    const platform::Selector step{goesBack ? "selectPreviousItem" : "selectNextItem"};
    return platform::sendAction(step, target, this);
}

} // namespace tidepool
