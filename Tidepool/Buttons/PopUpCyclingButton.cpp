#include "Tidepool/Buttons/PopUpCyclingButton.h"

#include "Platform/Controls/PopUpButton.h"
#include "Tidepool/Buttons/PopUpCyclingButtonCell.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace tidepool {

PopUpCyclingButton::PopUpCyclingButton(QWidget* parent)
    : CursorButton(std::make_unique<PopUpCyclingButtonCell>(), parent) {
    connect(this, &QAbstractButton::pressed, this, &PopUpCyclingButton::readShift);
}

void PopUpCyclingButton::readShift() {
    m_goesBack = QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
}

void PopUpCyclingButton::mouseReleaseEvent(QMouseEvent* event) {
    readShift();
    CursorButton::mouseReleaseEvent(event);
}

void PopUpCyclingButton::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space)
        readShift();
    CursorButton::keyReleaseEvent(event);
}

bool PopUpCyclingButton::sendAction(std::optional<platform::Selector> action, QObject* target) {
    if (qobject_cast<platform::PopUpButton*>(target) == nullptr)
        return CursorButton::sendAction(action, target);
    const platform::Selector step{m_goesBack ? "selectPreviousItem" : "selectNextItem"};
    return platform::sendAction(step, target, this);
}

} // namespace tidepool
