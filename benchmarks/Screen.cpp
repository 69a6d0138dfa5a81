#include "benchmarks/Screen.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <poll.h>
#include <stdexcept>
#include <sys/ipc.h>
#include <sys/shm.h>
#include <thread>

namespace benchmark {

using std::chrono::steady_clock;

namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

/// The answer to a request; null if it failed, which happens when a window has gone.
template <typename T, typename Cookie>
Reply<T> answer(T* (*get)(xcb_connection_t*, Cookie, xcb_generic_error_t**), xcb_connection_t* connection,
                Cookie cookie) {
    xcb_generic_error_t* error = nullptr;
    Reply<T> reply(get(connection, cookie, &error), &std::free);
    std::free(error);
    return reply;
}

constexpr int focusWindowSize = 40;

} // namespace

Screen::Screen() : m_connection(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(m_connection) != 0)
        throw std::runtime_error("cannot reach the X server");
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const auto* damage = xcb_get_extension_data(m_connection, &xcb_damage_id);
    if (damage == nullptr || damage->present == 0)
        throw std::runtime_error("the X server has no Damage extension");
    m_damageEvent = damage->first_event;
    answer(xcb_damage_query_version_reply, m_connection, xcb_damage_query_version(m_connection, 1, 1));
    xcb_damage_create(m_connection, xcb_generate_id(m_connection), m_screen->root,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    const std::size_t bytes = std::size_t{4} * m_screen->width_in_pixels * m_screen->height_in_pixels;
    const int memory = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    m_pixels = static_cast<std::uint32_t*>(shmat(memory, nullptr, 0));
    m_segment = xcb_generate_id(m_connection);
    xcb_shm_attach(m_connection, m_segment, static_cast<std::uint32_t>(memory), 0);
    for (int i = 0; i < 100 && !hasWindowManager(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    shmctl(memory, IPC_RMID, nullptr);
    if (!hasWindowManager())
        throw std::runtime_error("no window manager has come up");
    // A pointer above the window would bring its buttons out.
    xcb_warp_pointer(m_connection, XCB_NONE, m_screen->root, 0, 0, 0, 0,
                     static_cast<std::int16_t>(m_screen->width_in_pixels - 1),
                     static_cast<std::int16_t>(m_screen->height_in_pixels - 1));
}

Screen::~Screen() {
    xcb_disconnect(m_connection);
    shmdt(m_pixels);
}

bool Screen::hasWindowManager() const {
    // EWMH 1.5: set as long as a window manager runs.
    const auto check = answer(xcb_get_property_reply, m_connection,
                              xcb_get_property(m_connection, 0, m_screen->root,
                                               atom("_NET_SUPPORTING_WM_CHECK"), XCB_ATOM_WINDOW, 0, 1));
    return check && xcb_get_property_value_length(check.get()) == 4;
}

xcb_atom_t Screen::atom(const char* name) const {
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
    const auto reply = answer(xcb_intern_atom_reply, m_connection, cookie);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::optional<Rectangle> Screen::findWindow(int width, int height) const {
    const auto tree =
        answer(xcb_query_tree_reply, m_connection, xcb_query_tree(m_connection, m_screen->root));
    if (!tree)
        return std::nullopt;
    const auto* const children = xcb_query_tree_children(tree.get());
    for (int i = xcb_query_tree_children_length(tree.get()) - 1; i >= 0; --i) {
        const auto place =
            answer(xcb_get_geometry_reply, m_connection, xcb_get_geometry(m_connection, children[i]));
        if (!place || place->width != width || place->height != height)
            continue;
        const auto state = answer(xcb_get_window_attributes_reply, m_connection,
                                  xcb_get_window_attributes(m_connection, children[i]));
        if (state && state->map_state == XCB_MAP_STATE_VIEWABLE)
            return Rectangle{place->x, place->y, width, height};
    }
    return std::nullopt;
}

Picture Screen::look(const Rectangle& area) const {
    const auto cookie = xcb_shm_get_image(
        m_connection, m_screen->root, static_cast<std::int16_t>(area.x), static_cast<std::int16_t>(area.y),
        static_cast<std::uint16_t>(area.width), static_cast<std::uint16_t>(area.height), ~0U,
        XCB_IMAGE_FORMAT_Z_PIXMAP, m_segment, 0);
    if (!answer(xcb_shm_get_image_reply, m_connection, cookie))
        throw std::runtime_error("cannot read the screen");
    return {m_pixels, area.width, area.height};
}

void Screen::waitForEvent(steady_clock::time_point end) const {
    xcb_flush(m_connection);
    pollfd source{xcb_get_file_descriptor(m_connection), POLLIN, 0};
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - steady_clock::now());
    poll(&source, 1, static_cast<int>(std::max<long>(left.count(), 0)));
}

std::optional<steady_clock::time_point> Screen::waitFor(int width, int height,
                                                        const std::function<bool(const Picture&)>& isComplete,
                                                        std::chrono::seconds patience) {
    const auto end = steady_clock::now() + patience;
    while (steady_clock::now() < end) {
        bool somethingDrawn = false;
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection), &std::free})
            somethingDrawn = true;
        const auto window = somethingDrawn ? findWindow(width, height) : std::nullopt;
        if (window && isComplete(look(*window))) {
            m_found = *window;
            return steady_clock::now();
        }
        if (!somethingDrawn)
            waitForEvent(end);
    }
    return std::nullopt;
}

bool Screen::waitUntilGone(int width, int height, std::chrono::seconds patience) const {
    for (const auto end = steady_clock::now() + patience; steady_clock::now() < end;
         std::this_thread::sleep_for(std::chrono::milliseconds(20)))
        if (!findWindow(width, height))
            return true;
    return false;
}

long Screen::pixelsDrawn(int height, std::chrono::milliseconds duration) {
    while (const Reply<xcb_generic_event_t> old{xcb_poll_for_event(m_connection), &std::free})
        continue;
    const auto end = steady_clock::now() + duration;
    long sum = 0;
    for (; steady_clock::now() < end; waitForEvent(end)) {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection), &std::free}) {
            if ((event->response_type & 0x7f) != m_damageEvent)
                continue;
            const auto& area = reinterpret_cast<const xcb_damage_notify_event_t*>(event.get())->area;
            const int columns =
                std::min(area.x + area.width, m_found.x + m_found.width) - std::max<int>(area.x, m_found.x);
            const int rows =
                std::min(area.y + area.height, m_found.y + height) - std::max<int>(area.y, m_found.y);
            sum += static_cast<long>(std::max(columns, 0)) * std::max(rows, 0);
        }
    }
    return sum;
}

xcb_window_t Screen::activeWindow() const {
    const auto property = answer(
        xcb_get_property_reply, m_connection,
        xcb_get_property(m_connection, 0, m_screen->root, atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 0, 1));
    if (!property || xcb_get_property_value_length(property.get()) != 4)
        return XCB_WINDOW_NONE;
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(property.get()));
}

bool Screen::waitForFocus(int width, int height, std::chrono::seconds patience) {
    for (const auto end = steady_clock::now() + patience; steady_clock::now() < end;
         std::this_thread::sleep_for(std::chrono::milliseconds(20))) {
        const auto active =
            answer(xcb_get_geometry_reply, m_connection, xcb_get_geometry(m_connection, activeWindow()));
        if (active && active->width == width && active->height == height)
            return true;
    }
    return false;
}

void Screen::requestFocus(xcb_window_t window) const {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom("_NET_ACTIVE_WINDOW");
    event.data.data32[0] = 2; // as a pager, whose wish is always granted
    xcb_send_event(m_connection, 0, m_screen->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&event));
    xcb_flush(m_connection);
}

bool Screen::takeFocus() {
    m_focusWindow = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_focusWindow, m_screen->root, 0, 0,
                      focusWindowSize, focusWindowSize, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_map_window(m_connection, m_focusWindow);
    requestFocus(m_focusWindow);
    return waitForFocus(focusWindowSize, focusWindowSize, std::chrono::seconds(5));
}

void Screen::releaseFocus() {
    xcb_destroy_window(m_connection, m_focusWindow);
    xcb_flush(m_connection);
}

} // namespace benchmark
