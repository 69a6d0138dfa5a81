#include "Platform/Controls/PushButton.h"

#include "Platform/Controls/ButtonStyleCell.h"
#include "Platform/Controls/Menu.h"
#include "Platform/Controls/PointerTracking.h"
#include "Platform/Controls/PushButtonAccessibility.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

#include <utility>

namespace platform {

PushButton::PushButton(const QString& title, QWidget* parent)
    : PushButton(title, std::make_unique<ButtonCell>(), parent) {}

PushButton::PushButton(const QString& title, std::unique_ptr<ButtonCell> cell, QWidget* parent)
    : CellControl(std::move(cell), parent) {
    installPushButtonAccessibility();
    setText(title);
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QAbstractButton::clicked, this, [this] { performClick(); });
}

PushButton::PushButton(const QString& title, std::unique_ptr<ButtonStyle> style, QWidget* parent)
    : PushButton(title, std::make_unique<ButtonStyleCell>(std::move(style)), parent) {}

PushButton::~PushButton() {
    // Once the members of subclasses have gone there is nothing to end, and nobody to tell.
    const QSignalBlocker nobodyHears(this);
    m_tracking.reset();
    if (m_openMenu != nullptr)
        m_openMenu->close(); // while this can still hear of it
}

StyledControlState PushButton::controlFlags() const {
    using State = StyledControlState;
    return CellControl::controlFlags()
        .with(State::highlighted, isEnabled() && (isDown() || m_openMenu != nullptr))
        .with(State::on, cell().showsStateBy() && m_state == ControlState::on)
        .with(State::mixed, cell().showsStateBy() && m_state == ControlState::mixed);
}

void PushButton::setState(ControlState state) {
    if (state == m_state)
        return;
    m_state = state;
    update();
    QAccessible::State changed;
    changed.checked = true;
    changed.checkStateMixed = true;
    QAccessibleStateChangeEvent change(this, changed);
    QAccessible::updateAccessibility(&change);
    Q_EMIT stateChanged(state);
}

QMenu* PushButton::menu() const {
    return m_menu;
}

void PushButton::setMenu(QMenu* menu) {
    m_menu = menu;
}

std::optional<qreal> PushButton::baseline(qreal height) const {
    return cell().baseline(QRectF(0, 0, width(), height), context());
}

void PushButton::nextCheckState() {
    if (!isPressOver() && cell().showsStateBy() != ButtonCell::none)
        setState(cell().nextState(m_state));
}

void PushButton::performClick() {
    Control::sendAction();
}

bool PushButton::isTracking() const {
    return m_tracking && m_tracking->isActive();
}

void PushButton::beginTracking(QMouseEvent&) {
    m_tracking = std::make_unique<PointerTracking>(*this, [this](PointerTracking::End end) {
        endTracking();
        if (end != PointerTracking::End::released)
            Q_EMIT released();
    });
    setDown(true);
    Q_EMIT pressed();
}

void PushButton::cancelTracking() {
    if (m_tracking)
        m_tracking->interrupt();
}

bool PushButton::popUpMenu(const QMouseEvent& press) {
    if (press.button() != Qt::RightButton || m_menu == nullptr)
        return false;
    popUp(*m_menu, press.position().toPoint());
    return true;
}

void PushButton::popUp(QMenu& menu, QPoint position, QAction* item) {
    connect(&menu, &QMenu::aboutToHide, this, &PushButton::menuClosed, Qt::UniqueConnection);
    connect(&menu, &QMenu::destroyed, this, qOverload<>(&QWidget::update), Qt::UniqueConnection);
    m_openMenu = &menu;
    platform::popUp(menu, item, position, *this);
    if (m_openMenu != nullptr && !m_openMenu->isVisible())
        menuClosed(); // it has not opened, since this is disabled
    update();
}

void PushButton::menuClosed() {
    m_openMenu = nullptr;
    update();
}

void PushButton::mousePressEvent(QMouseEvent* event) {
    if (isTracking() || popUpMenu(*event))
        return;
    if (event->button() == Qt::LeftButton && hitButton(event->position().toPoint()))
        beginTracking(*event);
    else
        event->ignore();
}

void PushButton::mouseMoveEvent(QMouseEvent* event) {
    if (isTracking())
        setDown(hitButton(event->position().toPoint()));
    else
        event->ignore();
}

void PushButton::mouseReleaseEvent(QMouseEvent* event) {
    if (!isTracking() || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const bool isInside = hitButton(event->position().toPoint());
    m_tracking->release();
    if (isInside) {
        // Not `click`, which would begin with another press.
        setDown(true);
        CellControl::mouseReleaseEvent(event);
    } else {
        Q_EMIT released();
    }
}

/// Without the focus a key no longer holds the button, but the pointer does.
void PushButton::focusOutEvent(QFocusEvent* event) {
    isTracking() ? update() : CellControl::focusOutEvent(event);
}

void PushButton::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* const offered = offeredMenu();
    if (event->reason() == QContextMenuEvent::Keyboard && offered != nullptr)
        popUp(*offered, below(*this));
    else
        event->setAccepted(offered != nullptr);
}

void PushButton::changeEvent(QEvent* event) {
    CellControl::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        updateGeometry();
}

} // namespace platform
