#include "Tidepool/Buttons/ToolButton.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>

namespace tidepool {

ToolButton::ToolButton(const QString& title, QWidget* parent)
    : StyledButton(title, std::make_unique<ToolButtonCell>(), parent) {
    m_hold.setSingleShot(true);
    connect(&m_hold, &QTimer::timeout, this, [this] {
        if (isTracking()) {
            cancelTracking();
            sendSecondaryAction();
        }
    });
}

QSizeF ToolButton::intrinsicContentSize() const {
    const platform::CellContext look = context();
    QSizeF size = cell().cellSize(look);
    if (const platform::Image* bezel = cell().bezel(look))
        size.setWidth(std::max(size.width(), bezel->size().width()));
    return size;
}

void ToolButton::beginTracking(QMouseEvent& event) {
    const bool isSingleClick = event.type() == QEvent::MouseButtonPress;
    if (m_secondaryAction && isSingleClick)
        m_hold.start(QApplication::doubleClickInterval());
    else
        m_hold.stop();
    StyledButton::beginTracking(event); // last: who hears of the press may destroy the button
}

void ToolButton::sendSecondaryAction() {
    Control::sendAction(m_secondaryAction, m_secondaryTarget);
}

bool ToolButton::popUpMenu(const QMouseEvent& press) {
    if (!asksForMenu(press) || menu() == nullptr)
        return false;
    popUp(*menu(), menuPosition());
    return true;
}

void ToolButton::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard && menu() == nullptr && m_secondaryAction)
        sendSecondaryAction();
    else
        StyledButton::contextMenuEvent(event);
}

} // namespace tidepool
