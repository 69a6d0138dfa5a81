#include "Platform/Controls/PushButton.h"

#include "Platform/Controls/ButtonStyle.h"
#include "Platform/Controls/Menu.h"
#include "Platform/Controls/PointerTracking.h"
#include "Platform/Controls/PushButtonAccessibility.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>

#include <cmath>
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

PushButton::~PushButton() {
    // Once the members of subclasses have gone there is nothing to end, and nobody to tell.
    const QSignalBlocker nobodyHears(this);
    m_tracking.reset();
    if (m_openMenu != nullptr)
        m_openMenu->close(); // while this can still hear of it
}

ButtonCell& PushButton::cell() const {
    m_cell->setTitle(text());
    m_cell->setFont(font());
    m_cell->setLayoutDirection(layoutDirection());
    m_cell->setEnabled(isEnabled());
    m_cell->setHighlighted(isDown() || m_openMenu != nullptr);
    return *m_cell;
}

void PushButton::setState(ControlState state) {
    if (state == m_cell->state())
        return;
    m_cell->setState(state);
    update();
    QAccessible::State changed;
    changed.checked = true;
    changed.checkStateMixed = true;
    QAccessibleStateChangeEvent change(this, changed);
    QAccessible::updateAccessibility(&change);
    Q_EMIT stateChanged(state);
}

void PushButton::setBordered(bool bordered) {
    m_cell->setBordered(bordered);
    updateGeometry();
    update();
}

void PushButton::setImage(Image image) {
    m_cell->setImage(std::move(image));
    updateGeometry();
    update();
}

void PushButton::setImagePosition(ImagePosition position) {
    m_cell->setImagePosition(position);
    updateGeometry();
    update();
}

QMenu* PushButton::menu() const {
    return m_menu;
}

void PushButton::setMenu(QMenu* menu) {
    m_menu = menu;
}

void PushButton::setAlphaValue(qreal alpha) {
    if (alpha == m_alphaValue)
        return;
    m_alphaValue = alpha;
    update();
}

QSizeF PushButton::intrinsicContentSize() const {
    return cell().cellSize();
}

QSize PushButton::sizeHint() const {
    const QSizeF size = intrinsicContentSize().grownBy(alignmentRectInsets());
    return {static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))};
}

void PushButton::nextCheckState() {
    if (!isPressOver() && m_cell->showsStateBy() != ButtonCell::none)
        setState(m_cell->nextState());
}

void PushButton::performClick() {
    Control::sendAction();
}

void PushButton::draw(QPainter& painter) {
    cell().draw(painter, QRectF(rect()));
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
    painter.setOpacity(m_alphaValue);
    draw(painter);
    if (showsFocus())
        drawFocus(painter);
}

void PushButton::drawFocus(QPainter& painter) {
    constexpr qreal radius = 3;
    paintFocusRing(painter, focusRingMaskBounds(), radius);
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
        popUp(*offered, {isRightToLeft() ? width() : 0, height()});
    else
        event->setAccepted(offered != nullptr);
}

void PushButton::changeEvent(QEvent* event) {
    BaseButton::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange)
        updateGeometry();
}

} // namespace platform
