#pragma once

#include "Platform/Controls/CurrentEvent.h"

#include <QAbstractButton>

namespace platform {

/// A button that Return presses as well as Space: once, however long the key is held. Disabling and hiding it
/// end what a key or the mnemonic has begun, without a click.
class BaseButton : public QAbstractButton {
    Q_OBJECT

public:
    using QAbstractButton::QAbstractButton;

protected:
    /// True while Qt clicks for a press that has ended; nobody is told of that click.
    bool isPressOver() const { return m_isPressOver; }

    void nextCheckState() override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    bool m_isPressOver = false;
    std::optional<UserEvent> m_returnPress; // for the click that follows later
    bool m_isReturnHeld = false;            // some hosts of plug-ins pass repeats on as presses
};

} // namespace platform
