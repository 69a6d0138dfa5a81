#include "Plugin/Editor/HostKeyboard.h"

#include <QEvent>
#include <QGuiApplication>
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

xcb_window_t keyboardOwner() {
    const std::unique_ptr<xcb_get_input_focus_reply_t, decltype(&std::free)> reply(
        xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr), &std::free);
    return reply ? reply->focus : xcb_window_t{XCB_NONE};
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
    giveKeyboard(window);
}

void HostKeyboard::giveBack() {
    const xcb_window_t owner = std::exchange(m_owner, XCB_NONE);
    if (owner != XCB_NONE && keyboardOwner() == m_view.winId())
        giveKeyboard(owner);
}

} // namespace noteloft::plugin
