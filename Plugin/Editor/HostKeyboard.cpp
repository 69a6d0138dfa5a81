#include "Plugin/Editor/HostKeyboard.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <utility>

namespace noteloft::plugin {

namespace {

xcb_connection_t* connection() {
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
}

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

xcb_window_t keyboardOwner() {
    const Reply<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr), &std::free);
    return reply ? reply->focus : xcb_window_t{XCB_NONE};
}

/// The window on the screen's ground that `window` lies in; none if it has gone.
xcb_window_t outermost(xcb_window_t window) {
    for (;;) {
        const Reply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection(), xcb_query_tree(connection(), window), nullptr), &std::free);
        if (!tree || tree->parent == tree->root || tree->parent == XCB_NONE)
            return tree ? window : xcb_window_t{XCB_NONE};
        window = tree->parent;
    }
}

/// Whether the keyboard is in the window of the screen that the view lies in. Where nobody in particular has
/// it, nobody has taken it away either.
bool isKeyboardInWindowOf(const QWidget& view) {
    const xcb_window_t owner = keyboardOwner();
    return owner == XCB_NONE || owner == XCB_INPUT_FOCUS_POINTER_ROOT ||
           outermost(owner) == outermost(static_cast<xcb_window_t>(view.winId()));
}

void giveKeyboard(xcb_window_t window) {
    // The window may have gone meanwhile, which is no error.
    const auto cookie =
        xcb_set_input_focus_checked(connection(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    std::free(xcb_request_check(connection(), cookie));
}

} // namespace

HostKeyboard::HostKeyboard(QWidget& view) : m_view(view) {
    for (auto* const field : view.findChildren<QLineEdit*>())
        field->installEventFilter(this);
}

bool HostKeyboard::eventFilter(QObject*, QEvent* event) {
    switch (event->type()) {
    case QEvent::Show:
    // The keyboard may have gone elsewhere meanwhile.
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        borrow();
        break;
    case QEvent::Hide:
        giveBack();
        break;
    default:
        break;
    }
    return false;
}

void HostKeyboard::borrow() {
    const xcb_window_t owner = keyboardOwner();
    const auto window = static_cast<xcb_window_t>(m_view.winId());
    if (owner == window)
        return;
    m_owner = owner;
    m_wasActive = m_view.isActiveWindow();
    giveKeyboard(window);
}

void HostKeyboard::giveBack() {
    const xcb_window_t owner = std::exchange(m_owner, XCB_NONE);
    if (owner == XCB_NONE || keyboardOwner() != m_view.winId())
        return;
    giveKeyboard(owner);
    m_comesBack = m_wasActive;
}

void HostKeyboard::look() {
    if (m_owner != XCB_NONE && isPressedElsewhere())
        closeField();
    const bool isActive = m_view.isActiveWindow();
    if (!isActive && !m_comesBack)
        return;
    const bool isInHost = isKeyboardInWindowOf(m_view);
    if (isActive == isInHost)
        return;
    QApplication::setActiveWindow(isInHost ? &m_view : nullptr);
    m_comesBack = !isInHost;
}

bool HostKeyboard::isPressedElsewhere() const {
    const auto window = static_cast<xcb_window_t>(m_view.winId());
    const Reply<xcb_query_pointer_reply_t> pointer(
        xcb_query_pointer_reply(connection(), xcb_query_pointer(connection(), window), nullptr), &std::free);
    constexpr int buttons = XCB_BUTTON_MASK_1 | XCB_BUTTON_MASK_2 | XCB_BUTTON_MASK_3;
    if (!pointer || (pointer->mask & buttons) == 0 || QApplication::activePopupWidget() != nullptr)
        return false;
    const QPointF place = QPointF(pointer->win_x, pointer->win_y) / m_view.devicePixelRatioF();
    return !QRectF(m_view.rect()).contains(place);
}

void HostKeyboard::closeField() {
    if (QWidget* const field = m_view.focusWidget())
        field->clearFocus();
    m_comesBack = false; // the user is in the host now
}

} // namespace noteloft::plugin
