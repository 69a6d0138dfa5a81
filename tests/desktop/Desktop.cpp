#include "tests/desktop/Desktop.h"

#include <QDeadlineTimer>
#include <QTest>

#include <xcb/xtest.h>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

} // namespace

Desktop::Desktop() : m_connection(xcb_connect(nullptr, nullptr)) {
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_root, XCB_CW_EVENT_MASK, &mask);
    // A window manager that is still starting can take a request and then sleep on it until the next event.
    const std::uint32_t probe = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, 0, probe, m_root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0, 0,
                      nullptr);
    waitUntil([this, probe] {
        requestFrameExtents(probe);
        return !property(probe, atom("_NET_FRAME_EXTENTS")).isEmpty();
    });
    xcb_destroy_window(m_connection, probe);
}

Desktop::~Desktop() {
    xcb_disconnect(m_connection);
}

void Desktop::send(std::uint8_t type, std::uint8_t detail, QPoint position) {
    xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_root,
                        static_cast<int16_t>(position.x()), static_cast<int16_t>(position.y()), 0);
    xcb_flush(m_connection);
    wait(15);
}

void Desktop::press(Key key) {
    send(XCB_KEY_PRESS, static_cast<std::uint8_t>(key));
    send(XCB_KEY_RELEASE, static_cast<std::uint8_t>(key));
}

void Desktop::press(Key modifier, Key key) {
    send(XCB_KEY_PRESS, static_cast<std::uint8_t>(modifier));
    press(key);
    send(XCB_KEY_RELEASE, static_cast<std::uint8_t>(modifier));
}

void Desktop::movePointer(QPoint position) {
    send(XCB_MOTION_NOTIFY, 0, position);
}

void Desktop::pressPointer(QPoint position) {
    movePointer(position);
    send(XCB_BUTTON_PRESS, 1);
}

void Desktop::releasePointer(QPoint position) {
    movePointer(position);
    send(XCB_BUTTON_RELEASE, 1);
}

void Desktop::click(QPoint position) {
    pressPointer(position);
    releasePointer(position);
}

void Desktop::clickSecondary(QPoint position) {
    movePointer(position);
    send(XCB_BUTTON_PRESS, 3);
    send(XCB_BUTTON_RELEASE, 3);
}

void Desktop::drag(QPoint from, QPoint to) {
    constexpr int steps = 10;
    pressPointer(from);
    for (int i = 1; i <= steps; ++i)
        movePointer(from + (to - from) * i / steps);
    send(XCB_BUTTON_RELEASE, 1);
}

std::uint32_t Desktop::atom(const char* name) {
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(std::strlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr),
                                               &std::free);
    return reply->atom;
}

QByteArray Desktop::property(std::uint32_t window, std::uint32_t name) {
    const auto cookie = xcb_get_property(m_connection, 0, window, name, XCB_ATOM_ANY, 0, 4096);
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr),
                                                &std::free);
    if (!reply)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

QList<std::uint32_t> Desktop::windows() {
    const QByteArray list = property(m_root, atom("_NET_CLIENT_LIST"));
    const auto* const first = reinterpret_cast<const std::uint32_t*>(list.constData());
    return {first, first + list.size() / static_cast<int>(sizeof *first)};
}

QString Desktop::titleOf(std::uint32_t window) {
    return QString::fromUtf8(property(window, atom("_NET_WM_NAME")));
}

QStringList Desktop::windowTitles() {
    QStringList titles;
    for (const std::uint32_t window : windows())
        titles << titleOf(window);
    return titles;
}

std::uint32_t Desktop::windowNamed(const QString& title) {
    for (const std::uint32_t window : windows())
        if (titleOf(window) == title)
            return window;
    return XCB_WINDOW_NONE;
}

std::uint32_t Desktop::windowIn(std::uint32_t window, const char* name) {
    const QByteArray value = property(window, atom(name));
    std::uint32_t found = XCB_WINDOW_NONE;
    if (value.size() >= static_cast<int>(sizeof found))
        std::memcpy(&found, value.constData(), sizeof found);
    return found;
}

QString Desktop::activeTitle() {
    return titleOf(windowIn(m_root, "_NET_ACTIVE_WINDOW"));
}

QString Desktop::ownerOf(const QString& title) {
    return titleOf(windowIn(windowNamed(title), "WM_TRANSIENT_FOR"));
}

bool Desktop::offers(const char* feature) {
    const QByteArray supported = property(m_root, atom("_NET_SUPPORTED"));
    const std::uint32_t wanted = atom(feature);
    for (qsizetype at = 0; at + 4 <= supported.size(); at += 4)
        if (std::memcmp(supported.constData() + at, &wanted, 4) == 0)
            return true;
    return false;
}

QRect Desktop::placeOf(const QString& title) {
    const std::uint32_t window = windowNamed(title);
    const Reply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr), &std::free);
    const Reply<xcb_translate_coordinates_reply_t> corner(
        xcb_translate_coordinates_reply(
            m_connection, xcb_translate_coordinates(m_connection, window, m_root, 0, 0), nullptr),
        &std::free);
    return geometry && corner ? QRect(corner->dst_x, corner->dst_y, geometry->width, geometry->height)
                              : QRect();
}

bool Desktop::hasIcon(const QString& title) {
    return !property(windowNamed(title), atom("_NET_WM_ICON")).isEmpty();
}

std::uint32_t Desktop::time() {
    xcb_change_property(m_connection, XCB_PROP_MODE_APPEND, m_root, atom("_NOTELOFT_TEST"), XCB_ATOM_STRING,
                        8, 0, nullptr);
    xcb_flush(m_connection);
    while (auto* const event = xcb_wait_for_event(m_connection)) {
        const bool isFound = (event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY;
        const auto time = reinterpret_cast<const xcb_property_notify_event_t*>(event)->time;
        std::free(event);
        if (isFound)
            return time;
    }
    return XCB_CURRENT_TIME;
}

QByteArray Desktop::messages() {
    QByteArray messages;
    while (auto* const event = xcb_poll_for_event(m_connection)) {
        const auto* const message = reinterpret_cast<const xcb_client_message_event_t*>(event);
        if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE)
            messages.append(reinterpret_cast<const char*>(message->data.data8), sizeof message->data.data8);
        std::free(event);
    }
    return messages;
}

void Desktop::requestSize(std::uint32_t window, QSize size) {
    const std::uint32_t values[] = {static_cast<std::uint32_t>(size.width()),
                                    static_cast<std::uint32_t>(size.height())};
    xcb_configure_window(m_connection, window, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, values);
    xcb_flush(m_connection);
}

void Desktop::requestFrameExtents(std::uint32_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom("_NET_REQUEST_FRAME_EXTENTS");
    xcb_send_event(m_connection, 0, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(m_connection);
}

bool Desktop::waitUntil(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 15'000);
}

void Desktop::wait(int milliseconds) {
    QTest::qWait(milliseconds);
}
