#include "Tidepool/Buttons/CornerButton.h"

#include "Platform/Controls/PressKey.h"

#include <QMenu>
#include <QMouseEvent>

namespace tidepool {

CornerButton::CornerButton(const QString& title, QWidget* parent)
    : StyledButton(title, std::make_unique<CornerButtonCell>(), parent) {}

QMenu* CornerButton::alternateMenu() const {
    return m_alternateMenu;
}

void CornerButton::setAlternateMenu(QMenu* menu) {
    m_alternateMenu = menu;
}

QMenu* CornerButton::offeredMenu() const {
    return m_alternateMenu != nullptr ? m_alternateMenu.data() : StyledButton::offeredMenu();
}

void CornerButton::performClick() {
    if (m_alternateMenu != nullptr)
        popUp(*m_alternateMenu, menuPosition());
    else
        StyledButton::performClick();
}

void CornerButton::beginTracking(QMouseEvent& event) {
    if (m_alternateMenu == nullptr)
        StyledButton::beginTracking(event);
    else if (event.type() == QEvent::MouseButtonPress)
        performClick();
}

bool CornerButton::popUpMenu(const QMouseEvent& press) {
    if (!asksForMenu(press) || m_alternateMenu == nullptr)
        return StyledButton::popUpMenu(press);
    performClick();
    return true;
}

void CornerButton::keyPressEvent(QKeyEvent* event) {
    if (m_alternateMenu == nullptr || !platform::isPressKey(*event))
        StyledButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        performClick(); // at once: a menu does not wait for the release
}

} // namespace tidepool
