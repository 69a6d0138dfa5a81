#include "Platform/Controls/PushButton.h"

#include "Platform/Controls/ButtonStyleCell.h"
#include "Platform/Controls/Menu.h"
#include "Platform/Controls/PointerTracking.h"
#include "Platform/Controls/PushButtonAccessibility.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <utility>

namespace platform {

PushButton::PushButton(const QString& title, QWidget* parent)
    : PushButton(title, std::make_unique<ButtonCell>(), parent) {}

PushButton::PushButton(const QString& title, std::unique_ptr<ButtonCell> cell, QWidget* parent)
    : BaseButton(parent), m_cell(std::move(cell)) {
    installPushButtonAccessibility();
    setText(title);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_cell->setControlView(this);
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

CellContext PushButton::context() const {
    using State = StyledControlState;
    const CellStyle& style = m_cell->style();
    m_title.set(text(), m_cell->titleFont(font(), style));
    const bool hasState = m_cell->showsStateBy() != ButtonCell::none;
    const State state = State()
                            .with(State::disabled, !isEnabled())
                            .with(State::highlighted, isEnabled() && (isDown() || m_openMenu != nullptr))
                            .with(State::focused, showsFocus())
                            .with(State::on, hasState && m_state == ControlState::on)
                            .with(State::mixed, hasState && m_state == ControlState::mixed);
    return {m_cell->controlState(state), m_title, layoutDirection(), style};
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
    return m_cell->baseline(QRectF(0, 0, width(), height), context());
}

void PushButton::nextCheckState() {
    if (!isPressOver() && m_cell->showsStateBy() != ButtonCell::none)
        setState(m_cell->nextState(m_state));
}

void PushButton::performClick() {
    Control::sendAction();
}

void PushButton::draw(QPainter& painter) {
    m_cell->draw(painter, QRectF(rect()), context());
}

// The view's font and colours would cost a fourteenth of a repaint, and no cell asks for them.
void PushButton::initPainter(QPainter* painter) const {
    if (!m_isMakingPainter)
        BaseButton::initPainter(painter);
}

void PushButton::paintEvent(QPaintEvent*) {
    m_isMakingPainter = true;
    QPainter painter(this);
    m_isMakingPainter = false;
    painter.setOpacity(alphaValue());
    draw(painter);
    if (showsFocus())
        m_cell->drawFocus(painter, focusRingMaskBounds(), context());
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
        BaseButton::mouseReleaseEvent(event);
    } else {
        Q_EMIT released();
    }
}

/// Without the focus a key no longer holds the button, but the pointer does.
void PushButton::focusOutEvent(QFocusEvent* event) {
    isTracking() ? update() : BaseButton::focusOutEvent(event);
}

void PushButton::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* const offered = offeredMenu();
    if (event->reason() == QContextMenuEvent::Keyboard && offered != nullptr)
        popUp(*offered, below(*this));
    else
        event->setAccepted(offered != nullptr);
}

void PushButton::changeEvent(QEvent* event) {
    BaseButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        updateGeometry();
}

} // namespace platform
