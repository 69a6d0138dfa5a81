#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include <xcb/damage.h>
#include <xcb/shm.h>
#include <xcb/xcb.h>

namespace benchmark {

struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
};

/// Part of the screen as it stood at one moment. Valid until the next one is taken.
struct Picture {
    const std::uint32_t* pixels = nullptr;
    int width = 0;
    int height = 0;

    std::uint32_t at(int x, int y) const { return pixels[y * width + x] & 0xffffffU; }
};

/// The X server's side of things: what is on the screen, and what is drawn there by whom so ever. One screen
/// of 24 bits without a compositor is expected; a failure of the connection throws.
class Screen {
public:
    Screen();
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// Looks at the window of this size whenever something was drawn, until `isComplete` says so. The moment
    /// just after that look; none if `patience` ends first.
    std::optional<std::chrono::steady_clock::time_point>
    waitFor(int width, int height, const std::function<bool(const Picture&)>& isComplete,
            std::chrono::seconds patience);

    /// Waits until no window of this size is left of the program that ran before.
    bool waitUntilGone(int width, int height, std::chrono::seconds patience) const;

    /// Waits until the window manager has given the focus to a window of this size.
    bool waitForFocus(int width, int height, std::chrono::seconds patience);

    /// Pixels drawn during `duration` inside the upper `height` rows of the window that `waitFor` found,
    /// those drawn twice counted twice.
    long pixelsDrawn(int height, std::chrono::milliseconds duration);

    /// Shows a small window far from the others and waits until it has the focus.
    bool takeFocus();
    void releaseFocus();

private:
    std::optional<Rectangle> findWindow(int width, int height) const;
    Picture look(const Rectangle& area) const;
    void waitForEvent(std::chrono::steady_clock::time_point end) const;
    xcb_atom_t atom(const char* name) const;
    xcb_window_t activeWindow() const;
    bool hasWindowManager() const;
    void requestFocus(xcb_window_t window) const;

    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen;
    std::uint8_t m_damageEvent = 0;
    xcb_shm_seg_t m_segment = 0;
    std::uint32_t* m_pixels = nullptr;
    Rectangle m_found;
    xcb_window_t m_focusWindow = XCB_WINDOW_NONE;
};

} // namespace benchmark
