// The editor in a host that knows nothing of Qt: a plain X11 window, a pointer and an idle loop.
#include <lv2/ui/ui.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <xcb/xcb.h>
#include <xcb/xtest.h>

#include <dlfcn.h>
#include <unistd.h>

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::uint32_t transposePort = 2;
constexpr std::uint32_t holdPort = 5;
constexpr std::uint32_t pagePort = 7;

const LV2UI_Descriptor& load(const char* path) {
    void* const library = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    const auto find = library == nullptr
                          ? nullptr
                          : reinterpret_cast<LV2UI_DescriptorFunction>(dlsym(library, "lv2ui_descriptor"));
    if (find == nullptr) {
        ADD_FAILURE() << dlerror();
        std::abort();
    }
    return *find(0);
}

const LV2UI_Descriptor& descriptor() {
    static const LV2UI_Descriptor& loaded = load(NOTELOFT_EDITOR);
    return loaded;
}

/// The X server as a host and a person use it.
class Screen {
public:
    Screen() : m_connection(xcb_connect(nullptr, nullptr)) {
        m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    }

    ~Screen() { xcb_disconnect(m_connection); }

    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    /// Not managed by a window manager, so that it lies where it is put.
    std::uint32_t makeWindow(std::int16_t y) {
        const std::uint32_t window = xcb_generate_id(m_connection);
        const std::uint32_t values[] = {1};
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, m_screen->root, 0, y, width, 300, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, m_screen->root_visual, XCB_CW_OVERRIDE_REDIRECT,
                          values);
        xcb_map_window(m_connection, window);
        flush();
        return window;
    }

    void destroyWindow(std::uint32_t window) {
        xcb_destroy_window(m_connection, window);
        flush();
    }

    bool exists(std::uint32_t window) {
        auto* const reply =
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr);
        free(reply);
        return reply != nullptr;
    }

    /// The picture of a window and of what lies in it, from its top.
    std::vector<std::uint8_t> picture(std::uint32_t window, std::uint16_t height) {
        const auto cookie =
            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, width, height, ~0U);
        auto* const reply = xcb_get_image_reply(m_connection, cookie, nullptr);
        const std::uint8_t* const data = xcb_get_image_data(reply);
        std::vector<std::uint8_t> bytes(data, data + xcb_get_image_data_length(reply));
        free(reply);
        return bytes;
    }

    /// The window that gets the keys.
    std::uint32_t focus() {
        auto* const reply =
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr);
        const std::uint32_t window = reply->focus;
        free(reply);
        return window;
    }

    void setFocus(std::uint32_t window) {
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
        flush();
    }

    void pressKey(std::uint8_t code) {
        send(XCB_KEY_PRESS, code);
        send(XCB_KEY_RELEASE, code);
    }

    void movePointer(std::int16_t x, std::int16_t y) { send(XCB_MOTION_NOTIFY, 0, x, y); }

    void press() { send(XCB_BUTTON_PRESS, 1); }

    void release() { send(XCB_BUTTON_RELEASE, 1); }

private:
    static constexpr std::uint16_t width = 700;

    void send(std::uint8_t type, std::uint8_t detail, std::int16_t x = 0, std::int16_t y = 0) {
        xcb_test_fake_input(m_connection, type, detail, XCB_CURRENT_TIME, m_screen->root, x, y, 0);
        flush();
    }

    /// Returns when the server has done it.
    void flush() {
        free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }

    xcb_connection_t* m_connection;
    const xcb_screen_t* m_screen = nullptr;
};

/// A host with one editor.
class Host {
public:
    explicit Host(Screen& screen, std::int16_t y = 0, const LV2UI_Descriptor& editor = descriptor())
        : m_descriptor(editor), m_screen(screen), m_window(screen.makeWindow(y)) {
        m_editor = m_descriptor.instantiate(&m_descriptor, "http://quillfen.example/plugins/noteloft",
                                            NOTELOFT_EDITOR_FOLDER, write, this, &m_widget, m_features);
        EXPECT_NE(m_editor, nullptr);
        EXPECT_NE(m_widget, nullptr);
    }

    ~Host() { close(false); }

    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    void close(bool destroysWindowFirst) {
        if (m_editor == nullptr)
            return;
        if (destroysWindowFirst) {
            m_screen.destroyWindow(m_window);
            idle(2);
        }
        m_descriptor.cleanup(std::exchange(m_editor, nullptr));
        if (!destroysWindowFirst)
            m_screen.destroyWindow(m_window);
    }

    void idle(int times = 10) {
        const auto* const interface =
            static_cast<const LV2UI_Idle_Interface*>(m_descriptor.extension_data(LV2_UI__idleInterface));
        for (int i = 0; i < times && m_editor != nullptr; ++i) {
            interface->idle(m_editor);
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
    }

    void send(std::uint32_t port, float value) {
        m_descriptor.port_event(m_editor, port, sizeof value, 0, &value);
        idle();
    }

    std::uint32_t window() const { return m_window; }

    std::uint32_t editorWindow() const {
        return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(m_widget));
    }

    std::vector<std::string> take() { return std::exchange(m_heard, {}); }

private:
    static void write(LV2UI_Controller host, std::uint32_t port, std::uint32_t size, std::uint32_t format,
                      const void* buffer) {
        EXPECT_EQ(size, sizeof(float));
        EXPECT_EQ(format, 0U);
        std::ostringstream message;
        message << port << '=' << *static_cast<const float*>(buffer);
        static_cast<Host*>(host)->m_heard.push_back(message.str());
    }

    static void touch(LV2UI_Feature_Handle host, std::uint32_t port, bool isTouched) {
        static_cast<Host*>(host)->m_heard.push_back((isTouched ? "touch " : "release ") +
                                                    std::to_string(port));
    }

    const LV2UI_Descriptor& m_descriptor;
    Screen& m_screen;
    const std::uint32_t m_window;
    LV2UI_Touch m_touch{this, touch};
    // NOLINTNEXTLINE(performance-no-int-to-ptr): what the interface passes windows as
    LV2_Feature m_parentFeature{LV2_UI__parent, reinterpret_cast<void*>(std::uintptr_t{m_window})};
    LV2_Feature m_touchFeature{LV2_UI__touch, &m_touch};
    const LV2_Feature* const m_features[3] = {&m_parentFeature, &m_touchFeature, nullptr};
    LV2UI_Handle m_editor = nullptr;
    LV2UI_Widget m_widget = nullptr;
    std::vector<std::string> m_heard;
};

class EditorTest : public testing::Test {
protected:
    // The first dial's middle, and the hold button's.
    static constexpr std::int16_t dialX = 86;
    static constexpr std::int16_t dialY = 110;
    static constexpr std::int16_t holdX = 614;
    static constexpr std::int16_t holdY = 110;
    static constexpr std::int16_t valueY = 182; // below the dial

    void drag(Host& host, int upwards, const std::function<void()>& meanwhile = {}) {
        m_screen.movePointer(dialX, dialY);
        m_screen.press();
        host.idle();
        m_screen.movePointer(dialX, static_cast<std::int16_t>(dialY - upwards));
        host.idle();
        if (meanwhile)
            meanwhile();
        m_screen.release();
        host.idle();
    }

    void click(Host& host, std::int16_t x, std::int16_t y) {
        m_screen.movePointer(x, y);
        m_screen.press();
        host.idle();
        m_screen.release();
        host.idle();
    }

    void type(Host& host, std::initializer_list<std::uint8_t> keyCodes) {
        for (const auto code : keyCodes)
            m_screen.pressKey(code);
        host.idle();
    }

    Screen m_screen;
};

// Codes of keys on every Xvfb.
constexpr std::uint8_t escapeKey = 9;
constexpr std::uint8_t sevenKey = 16;
constexpr std::uint8_t returnKey = 36;

} // namespace

TEST_F(EditorTest, AppearsWithoutAWordToTheHostAndLeavesItsLocaleAlone) {
    std::setlocale(LC_ALL, "C");
    Host host(m_screen);
    host.idle(20);
    EXPECT_THAT(host.take(), IsEmpty());
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    EXPECT_EQ(std::getenv("QT_NO_GLIB"), nullptr);
    EXPECT_EQ(descriptor().instantiate(&descriptor(), "", NOTELOFT_EDITOR_FOLDER, nullptr, nullptr, nullptr,
                                       nullptr),
              nullptr)
        << "a host without a window for it";
}

TEST_F(EditorTest, ADragIsATouchValuesAndARelease) {
    Host host(m_screen);
    host.idle(20);
    drag(host, 50);
    EXPECT_THAT(host.take(), ElementsAre("touch 2", "2=0", "2=12", "2=12", "release 2"));
}

TEST_F(EditorTest, APortOfWholeNumbersGetsThem) {
    Host host(m_screen);
    host.idle(20);
    drag(host, 30);
    EXPECT_THAT(host.take(), ElementsAre("touch 2", "2=0", "2=7", "2=7", "release 2"));
}

TEST_F(EditorTest, TheHandWinsAndTheHostsLastValueShowsAfterwards) {
    Host host(m_screen);
    host.idle(20);
    host.send(transposePort, 6);
    EXPECT_THAT(host.take(), IsEmpty());
    drag(host, 25, [&] { host.send(transposePort, -10); });
    EXPECT_THAT(host.take(), ElementsAre("touch 2", "2=6", "2=12", "2=12", "release 2"));
    drag(host, 25);
    EXPECT_THAT(host.take(), ElementsAre("touch 2", "2=-10", "2=-4", "2=-4", "release 2"));
}

TEST_F(EditorTest, HoldIsOneWhileItIsHeld) {
    Host host(m_screen);
    host.idle(20);
    m_screen.movePointer(holdX, holdY);
    m_screen.press();
    host.idle();
    EXPECT_THAT(host.take(), ElementsAre("5=1"));
    host.send(holdPort, 1);
    m_screen.release();
    host.idle();
    EXPECT_THAT(host.take(), ElementsAre("5=0"));
}

TEST_F(EditorTest, PagesFollowTheTabsAndTheHost) {
    constexpr std::int16_t secondTabX = 351;
    constexpr std::int16_t tabY = 23;
    Host host(m_screen);
    host.idle(20);
    m_screen.movePointer(secondTabX, tabY);
    m_screen.press();
    host.idle();
    m_screen.release();
    host.idle();
    EXPECT_THAT(host.take(), ElementsAre("7=1"));
    drag(host, 50);
    EXPECT_THAT(host.take(), ElementsAre("touch 10", "10=0", "10=3", "10=3", "release 10")) << "the chord";
    host.send(pagePort, 2);
    drag(host, 50);
    EXPECT_THAT(host.take(), ElementsAre("touch 3", "3=100", "3=150", "3=150", "release 3"))
        << "the velocity";
}

TEST_F(EditorTest, BorrowsTheKeyboardOnlyWhileAValueIsTyped) {
    Host host(m_screen);
    host.idle(20);
    m_screen.setFocus(host.window());
    drag(host, 25);
    EXPECT_EQ(m_screen.focus(), host.window()) << "the host's keys still work";
    host.take();

    click(host, dialX, valueY);
    EXPECT_EQ(m_screen.focus(), host.editorWindow());
    type(host, {sevenKey, returnKey});
    EXPECT_THAT(host.take(), ElementsAre("2=7"));
    EXPECT_EQ(m_screen.focus(), host.window());

    click(host, dialX, valueY);
    type(host, {sevenKey, sevenKey, escapeKey});
    EXPECT_THAT(host.take(), IsEmpty());
    EXPECT_EQ(m_screen.focus(), host.window());
}

TEST_F(EditorTest, TheKeyboardComesBackWithAClickAndGoesWithTheEditor) {
    const std::uint32_t other = m_screen.makeWindow(400);
    Host host(m_screen);
    host.idle(20);
    click(host, dialX, valueY);
    m_screen.setFocus(other);
    host.idle();
    click(host, dialX, valueY);
    EXPECT_EQ(m_screen.focus(), host.editorWindow());
    host.close(false);
    EXPECT_EQ(m_screen.focus(), other);
    m_screen.destroyWindow(other);
}

TEST_F(EditorTest, NoControlShowsAFocusRingBeforeTheUserGoesToIt) {
    constexpr std::uint16_t headerHeight = 46;
    Host host(m_screen);
    host.idle(20);
    const auto before = m_screen.picture(host.window(), headerHeight);
    m_screen.setFocus(host.editorWindow());
    host.idle(20);
    EXPECT_EQ(m_screen.picture(host.window(), headerHeight), before);
}

TEST_F(EditorTest, ItsWindowIsGoneWhenItHasBeenClosed) {
    Host host(m_screen);
    host.idle(20);
    ASSERT_TRUE(m_screen.exists(host.editorWindow()));
    host.close(false);
    EXPECT_FALSE(m_screen.exists(host.editorWindow()));
}

TEST_F(EditorTest, OpensAndClosesAHundredTimesInBothOrders) {
    for (int i = 0; i < 100; ++i) {
        Host host(m_screen);
        host.idle(2);
        host.close(i % 2 == 0);
    }
}

TEST_F(EditorTest, TwoAtOnceDoNotHearOfEachOther) {
    Host first(m_screen);
    Host second(m_screen, 400);
    first.idle(20);
    drag(first, 50);
    EXPECT_FALSE(first.take().empty());
    EXPECT_THAT(second.take(), IsEmpty());
    first.close(true);
    second.idle();
    m_screen.movePointer(holdX, 400 + holdY);
    m_screen.press();
    second.idle();
    EXPECT_THAT(second.take(), ElementsAre("5=1"));
    m_screen.release();
    second.idle();
}

// The application object may be that of another plug-in, whose editor has gone.
TEST_F(EditorTest, LivesOnAnotherPluginsApplication) {
    Host(m_screen).idle(2);
    namespace fs = std::filesystem;
    const fs::path bundle(NOTELOFT_EDITOR_FOLDER);
    const fs::path folder = fs::temp_directory_path() / ("editor-" + std::to_string(getpid()));
    fs::create_directory(folder);
    for (const auto& entry : fs::directory_iterator(bundle))
        if (entry.is_directory())
            fs::create_directory_symlink(entry.path(), folder / entry.path().filename());
    const fs::path library = folder / fs::path(NOTELOFT_EDITOR).filename();
    fs::copy_file(NOTELOFT_EDITOR, library); // a link would be the library that is loaded already
    {
        Host other(m_screen, 0, load(library.c_str()));
        other.idle(20);
        drag(other, 50);
        EXPECT_THAT(other.take(), ElementsAre("touch 2", "2=0", "2=12", "2=12", "release 2"));
    }
    fs::remove_all(folder);
}
