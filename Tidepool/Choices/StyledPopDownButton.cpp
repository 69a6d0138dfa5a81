#include "Tidepool/Choices/StyledPopDownButton.h"

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

void StyledPopDownButton::beginTracking(QMouseEvent& event) {
    StyledMenuButton::beginTracking(event);
    if (isTracking())
        m_hold.start(QApplication::doubleClickInterval());
}

void StyledPopDownButton::endTracking() {
    m_hold.stop();
    StyledMenuButton::endTracking();
}

bool StyledPopDownButton::popUpMenu(const QMouseEvent& press) {
    if (pressOpensMenu() || press.button() != Qt::RightButton)
        return StyledMenuButton::popUpMenu(press);
    openMenu();
    return true;
}

} // namespace tidepool
