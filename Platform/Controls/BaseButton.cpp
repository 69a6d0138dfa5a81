#include "Platform/Controls/BaseButton.h"

#include <QButtonGroup>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <utility>

namespace platform {

void BaseButton::nextCheckState() {
    if (!m_isPressOver)
        QAbstractButton::nextCheckState();
}

void BaseButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        QAbstractButton::keyPressEvent(event);
    else if (!event->isAutoRepeat() && !std::exchange(m_isReturnHeld, true)) {
        m_returnPress = currentEvent();
        animateClick();
    }
}

void BaseButton::keyReleaseEvent(QKeyEvent* event) {
    QAbstractButton::keyReleaseEvent(event);
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && !event->isAutoRepeat())
        m_isReturnHeld = false;
}

void BaseButton::focusOutEvent(QFocusEvent* event) {
    m_isReturnHeld = false; // its release goes to whoever has the keyboard now
    QAbstractButton::focusOutEvent(event);
}

void BaseButton::hideEvent(QHideEvent* event) {
    QAbstractButton::hideEvent(event);
    if (isDown()) {
        setDown(false);
        Q_EMIT released();
    }
}

/// Qt clicks a while after Return or the mnemonic, also if the button was disabled or hidden meanwhile.
void BaseButton::timerEvent(QTimerEvent* event) {
    const CurrentEventScope scope(std::exchange(m_returnPress, std::nullopt)); // the next click is another's
    if (isDown()) {
        QAbstractButton::timerEvent(event);
        return;
    }
    const QSignalBlocker nobodyHears(this);
    const QSignalBlocker norDoesItsGroup(group());
    const QScopedValueRollback over(m_isPressOver, true);
    QAbstractButton::timerEvent(event);
}

} // namespace platform
