#include "Platform/Windows/HiddenTitleBarWindow.h"

#include "Platform/Controls/MenuStyle.h"
#include "Platform/Core/WindowSystem.h"
#include "Platform/Windows/WindowButton.h"
#include "Platform/Windows/WindowCorner.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>
#include <QVBoxLayout>
#include <QVariantAnimation>
#include <QWindow>

namespace platform {

namespace {

/// The strip at the upper edge that stands for the title bar, in points.
constexpr int titleBarHeight = 32;
constexpr int fadeMilliseconds = 140;

} // namespace

HiddenTitleBarWindow::HiddenTitleBarWindow(const QString& title, QWidget* content, QMenu* menu)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      m_menu(menu),
      m_buttonBar(new QWidget(this)),
      m_fade(new QVariantAnimation(this)) {
    setWindowTitle(title);
    setAttribute(Qt::WA_TranslucentBackground, isCompositing());
    setFixedSize(content->size());
    // Until somebody uses the keyboard no control is marked.
    setFocusPolicy(Qt::ClickFocus);
    setFocus();
    content->setParent(this);
    content->move(0, 0);
    m_buttonBar->raise();
    MenuStyle::apply(*menu);
    addButtons();
    if (testAttribute(Qt::WA_TranslucentBackground))
        addCorners();
    addShortcuts();
}

void HiddenTitleBarWindow::addButtons() {
    m_buttonBar->setGeometry(0, 0, width(), titleBarHeight);
    auto* const bar = new QHBoxLayout(m_buttonBar);
    bar->setContentsMargins(8, 8, 8, 0);
    bar->setSpacing(4);
    m_menuButton = new WindowButton(WindowButton::Kind::menu, tr("Menu"));
    auto* const minimize = new WindowButton(WindowButton::Kind::minimize, tr("Minimize"));
    auto* const close = new WindowButton(WindowButton::Kind::close, tr("Close"));
    bar->addWidget(m_menuButton);
    bar->addStretch();
    bar->addWidget(minimize);
    bar->addWidget(close);
    connect(m_menuButton, &WindowButton::clicked, this, &HiddenTitleBarWindow::openMenu);
    connect(m_menu, &QMenu::aboutToShow, this, [this] { setButtonsShown(true); });
    connect(m_menu, &QMenu::aboutToHide, this,
            [this] { setButtonsShown(underMouse() || isKeyboardOnButtons()); });
    connect(minimize, &WindowButton::clicked, this, &QWidget::showMinimized);
    connect(close, &WindowButton::clicked, this, &QWidget::close);
    for (WindowButton* button : {m_menuButton, minimize, close})
        button->installEventFilter(this);
    m_fade->setDuration(fadeMilliseconds);
    m_fade->setStartValue(0.0);
    m_fade->setEndValue(1.0);
    connect(m_fade, &QVariantAnimation::valueChanged, this, [=, this](const QVariant& value) {
        for (WindowButton* button : {m_menuButton, minimize, close})
            button->setAlphaValue(value.toReal());
    });
}

void HiddenTitleBarWindow::addCorners() {
    // Compositors that know windows only by their shape put the shadow behind the corners, too.
    setMask(WindowCorner::shape(size()));
    for (const Qt::Corner corner :
         {Qt::TopLeftCorner, Qt::TopRightCorner, Qt::BottomLeftCorner, Qt::BottomRightCorner})
        new WindowCorner(corner, this);
}

void HiddenTitleBarWindow::addShortcuts() {
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
    const QKeySequence minimize(Qt::CTRL | Qt::Key_M);
    connect(new QShortcut(minimize, this), &QShortcut::activated, this, &QWidget::showMinimized);
}

void HiddenTitleBarWindow::makeKeyAndOrderFront(const ActivationToken& token) {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    const bool appears = !isVisible();
    show();
    if (appears)
        keepLowerEdgeInReach();
    activate(*windowHandle(), token);
}

// On a screen with less room than the window needs, its controls matter more than its upper edge. Some window
// managers grant such a place only to a window that is shown.
void HiddenTitleBarWindow::keepLowerEdgeInReach() {
    const QRect room = screen()->availableGeometry();
    if (height() > room.height())
        move(room.center().x() - width() / 2, room.bottom() + 1 - height());
}

void HiddenTitleBarWindow::openMenu() {
    const QWidget* const front = QApplication::activeWindow();
    const QWidget* const place = front == nullptr || front == this ? m_menuButton : front;
    m_menu->popup(place == m_menuButton ? place->mapToGlobal(QPoint(0, place->height() + 4))
                                        : place->mapToGlobal(QPoint()));
    m_menu->setActiveAction(m_menu->actions().value(0));
}

void HiddenTitleBarWindow::openSystemMenu(const QPoint& position) {
    if (windowHandle() == nullptr || !showSystemMenu(*windowHandle(), position))
        m_menu->popup(position);
}

void HiddenTitleBarWindow::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() == QContextMenuEvent::Keyboard)
        openMenu();
    else if (event->y() < titleBarHeight)
        openSystemMenu(event->globalPos());
    else
        m_menu->popup(event->globalPos());
}

void HiddenTitleBarWindow::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        m_press = event->position().toPoint();
}

void HiddenTitleBarWindow::mouseMoveEvent(QMouseEvent* event) {
    if (!m_press || (event->buttons() & Qt::LeftButton) == 0)
        return;
    const QPoint moved = event->position().toPoint() - *m_press;
    if (moved.manhattanLength() < QApplication::startDragDistance())
        return;
    m_press.reset();
    windowHandle()->startSystemMove();
}

void HiddenTitleBarWindow::mouseReleaseEvent(QMouseEvent*) {
    m_press.reset();
}

void HiddenTitleBarWindow::enterEvent(QEnterEvent*) {
    setButtonsShown(true);
}

void HiddenTitleBarWindow::leaveEvent(QEvent*) {
    setButtonsShown(isKeyboardOnButtons() || m_menu->isVisible());
}

bool HiddenTitleBarWindow::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::FocusIn)
        setButtonsShown(true);
    else if (event->type() == QEvent::FocusOut)
        setButtonsShown(underMouse() || m_menu->isVisible());
    return false;
}

bool HiddenTitleBarWindow::isKeyboardOnButtons() const {
    const QWidget* focused = QApplication::focusWidget();
    return focused != nullptr && m_buttonBar->isAncestorOf(focused);
}

void HiddenTitleBarWindow::setButtonsShown(bool shown) {
    const auto direction = shown ? QAbstractAnimation::Forward : QAbstractAnimation::Backward;
    const bool isThere = m_fade->currentValue().toReal() >= 1.0;
    if (m_fade->state() == QAbstractAnimation::Stopped && isThere == shown)
        return;
    m_fade->setDirection(direction);
    if (m_fade->state() == QAbstractAnimation::Stopped)
        m_fade->start();
}

} // namespace platform
