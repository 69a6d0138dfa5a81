#include "Tidepool/CornerButton.h"

#include "Tidepool/ButtonMenu.h"

#include <QKeyEvent>
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
        popUp(*m_alternateMenu, positionUnder(*this));
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
    const bool presses =
        event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (presses && m_alternateMenu != nullptr)
        performClick(); // at once: a menu does not wait for the release
    else
        StyledButton::keyPressEvent(event);
}

} // namespace tidepool
