#include "Tidepool/Choices/StyledPopDownButton.h"

#include "Platform/Controls/PressKey.h"

#include <QApplication>
#include <QMouseEvent>

namespace tidepool {

StyledPopDownButton::StyledPopDownButton(QWidget* parent)
    : StyledMenuButton(std::make_unique<StyledPopDownButtonCell>(), parent) {
    m_hold.setSingleShot(true);
    connect(&m_hold, &QTimer::timeout, this, [this] {
        cancelTracking();
        openMenu();
    });
}

void StyledPopDownButton::performClick() {
    action() ? PushButton::performClick() : StyledMenuButton::performClick();
}

void StyledPopDownButton::beginTracking(QMouseEvent& event) {
    if (!action()) {
        StyledMenuButton::beginTracking(event);
        return;
    }
    PushButton::beginTracking(event);
    m_hold.start(QApplication::doubleClickInterval());
}

void StyledPopDownButton::endTracking() {
    m_hold.stop();
    PushButton::endTracking();
}

bool StyledPopDownButton::popUpMenu(const QMouseEvent& press) {
    if (!action() || press.button() != Qt::RightButton)
        return StyledMenuButton::popUpMenu(press);
    openMenu();
    return true;
}

void StyledPopDownButton::keyPressEvent(QKeyEvent* event) {
    if (action() && platform::isPressKey(*event))
        BaseButton::keyPressEvent(event);
    else
        StyledMenuButton::keyPressEvent(event);
}

} // namespace tidepool
