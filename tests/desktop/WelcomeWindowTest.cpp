#include "Noteloft/ContentView.h"
#include "Noteloft/ContentViewShader.h"
#include "Noteloft/NoteloftApp.h"
#include "Platform/Core/SingleInstance.h"
#include "Platform/Gpu/GpuView.h"
#include "Platform/Windows/HiddenTitleBarWindow.h"
#include "VantorShaders/MetalShaderRenderer.h"
#include "tests/desktop/Desktop.h"
#include "tests/support/Browser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QMenu>

#include <gtest/gtest.h>

namespace {

class WelcomeWindowTest : public testing::Test {
protected:
    WelcomeWindowTest() : m_app(noteloft::LaunchOptions{}) {
        QApplication::setQuitOnLastWindowClosed(false);
        m_app.finishLaunching();
        EXPECT_TRUE(Desktop::waitUntil([this] { return window().isActiveWindow(); }));
    }

    platform::HiddenTitleBarWindow& window() { return m_app.window(); }

    platform::GpuView& header() { return *m_app.contentView().waveform().controller().metalKitView(); }

    vantor::MetalShaderRenderer& renderer() {
        return *m_app.contentView().waveform().controller().renderer();
    }

    QPoint inWindow(int x, int y) { return window().mapToGlobal(QPoint(x, y)); }

    QString focusedName() const {
        const auto* const focused = QApplication::focusWidget();
        const auto* const button = qobject_cast<const QAbstractButton*>(focused);
        if (button == nullptr)
            return {};
        return button->text().isEmpty() ? button->accessibleName() : button->text();
    }

    /// Counts the frames that the header shows meanwhile.
    int framesIn(int milliseconds) {
        int frames = 0;
        qint64 shown = header().image().cacheKey();
        for (QElapsedTimer timer;
             timer.isValid() ? !timer.hasExpired(milliseconds) : (timer.start(), true);) {
            Desktop::wait(5);
            frames += header().image().cacheKey() != shown ? 1 : 0;
            shown = header().image().cacheKey();
        }
        return frames;
    }

    Desktop m_desktop;
    Browser m_browser;
    noteloft::NoteloftApp m_app;
};

} // namespace

TEST_F(WelcomeWindowTest, ClockAndFramesStandStillWhileAnotherWindowIsKey) {
    EXPECT_GT(framesIn(300), 5);

    QWidget other;
    other.setGeometry(900, 100, 200, 200);
    other.show();
    ASSERT_TRUE(Desktop::waitUntil([&] { return other.isVisible(); }));
    m_desktop.click(other.mapToGlobal(QPoint(100, 100)));
    ASSERT_TRUE(Desktop::waitUntil([&] { return other.isActiveWindow(); }));
    const float stopped = renderer().time();
    EXPECT_TRUE(header().isPaused());
    EXPECT_EQ(framesIn(1500), 0);

    m_desktop.click(inWindow(200, 400));
    ASSERT_TRUE(Desktop::waitUntil([this] { return window().isActiveWindow(); }));
    EXPECT_GE(renderer().time(), stopped - 0.05F);
    EXPECT_LT(renderer().time(), stopped + 0.75F) << "the pause of 1.5 s does not count";
    EXPECT_GT(framesIn(300), 5);
}

TEST_F(WelcomeWindowTest, EverythingCanBeDoneByKeyboard) {
    EXPECT_EQ(focusedName(), QString()) << "nothing is marked before somebody uses the keyboard";
    QStringList order;
    for (int i = 0; i < 5; ++i) {
        m_desktop.press(Key::tab);
        order << focusedName();
    }
    EXPECT_EQ(order,
              QStringList({QStringLiteral("Help"), QStringLiteral("Quillfen Website"), QStringLiteral("Menu"),
                           QStringLiteral("Minimize"), QStringLiteral("Close")}))
        << order.join(u',').toStdString();

    m_desktop.press(Key::tab);
    ASSERT_EQ(focusedName(), QStringLiteral("Help"));
    m_desktop.press(Key::space);
    m_desktop.press(Key::tab);
    m_desktop.press(Key::enter);
    EXPECT_TRUE(Desktop::waitUntil([this] { return m_browser.opened.size() == 2; }));
    EXPECT_EQ(m_browser.opened.value(0), noteloft::ContentView::helpURL());
    m_desktop.press(Key::f1);
    EXPECT_TRUE(Desktop::waitUntil([this] { return m_browser.opened.size() == 3; }));
    EXPECT_EQ(m_browser.opened.value(2), m_browser.opened.value(0));

    m_desktop.press(Key::f10);
    ASSERT_TRUE(Desktop::waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
    const auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->actions().first()->text(), QStringLiteral("About"));
    EXPECT_FALSE(header().isPaused()) << "a menu leaves its window key";
    m_desktop.press(Key::enter);
    EXPECT_TRUE(Desktop::waitUntil(
        [this] { return m_desktop.windowTitles().contains(QStringLiteral("About Noteloft")); }));
    EXPECT_TRUE(Desktop::waitUntil([this] { return header().isPaused(); }));
    m_desktop.press(Key::escape);
    EXPECT_TRUE(Desktop::waitUntil([this] { return window().isActiveWindow() && !header().isPaused(); }));
}

TEST_F(WelcomeWindowTest, ClosesByKeysAndComesBackWithANewWaveform) {
    const auto seed = renderer().seed();
    Desktop::wait(400);
    m_desktop.press(Key::control, Key::w);
    ASSERT_TRUE(Desktop::waitUntil([this] { return !window().isVisible(); }));
    EXPECT_EQ(m_app.contentView().waveform().controller().metalKitView(), nullptr);

    m_app.reopen({});
    ASSERT_TRUE(Desktop::waitUntil([this] { return window().isActiveWindow(); }));
    EXPECT_NE(renderer().seed(), seed);
    EXPECT_LT(renderer().time(), 0.4F);
}

TEST_F(WelcomeWindowTest, MovesByItsBackgroundAndKeepsItsSize) {
    const QPoint before = window().pos();
    m_desktop.drag(inWindow(200, 420), inWindow(200, 420) + QPoint(80, 50));
    EXPECT_TRUE(Desktop::waitUntil([&] { return window().pos() != before; }));
    const QPoint moved = window().pos() - before;
    EXPECT_NEAR(moved.x(), 80, 12);
    EXPECT_NEAR(moved.y(), 50, 12);

    const QPoint dropped = window().pos();
    for (int i = 1; i <= 10; ++i)
        m_desktop.movePointer(inWindow(200, 420) + QPoint(-15 * i, 6 * i));
    Desktop::wait(100);
    EXPECT_EQ(window().pos(), dropped) << "the drag ended with the drop";
    m_desktop.drag(inWindow(200, 420), inWindow(200, 420) - QPoint(40, 30));
    EXPECT_TRUE(Desktop::waitUntil([&] { return window().pos() != dropped; }))
        << "the next drag moves it again";

    m_desktop.requestSize(static_cast<std::uint32_t>(window().winId()), {640, 800});
    Desktop::wait(300);
    EXPECT_EQ(window().size(), QSize(400, 572));
}

TEST_F(WelcomeWindowTest, ButtonsOfTheWindowAppearWithThePointerAndWork) {
    m_desktop.movePointer({5, 890});
    Desktop::wait(400);
    const QRect corner(360, 0, 40, 40);
    header().setPaused(true);
    const QImage without = window().grab(corner).toImage();
    m_desktop.movePointer(inWindow(200, 420));
    Desktop::wait(400);
    EXPECT_NE(window().grab(corner).toImage(), without);

    m_desktop.click(inWindow(400 - 8 - 24 - 4 - 12, 20));
    EXPECT_TRUE(Desktop::waitUntil([this] { return window().isMinimized(); }));
    EXPECT_TRUE(header().isPaused());
    m_app.reopen({});
    EXPECT_TRUE(Desktop::waitUntil([this] { return window().isActiveWindow() && !window().isMinimized(); }));
    m_desktop.click(inWindow(400 - 8 - 12, 20));
    EXPECT_TRUE(Desktop::waitUntil([this] { return !window().isVisible(); }));
}

TEST_F(WelcomeWindowTest, SecondaryClickOpensTheMenuOfItsPlace) {
    const auto ownMenu = [] { return QApplication::activePopupWidget() != nullptr; };
    m_desktop.clickSecondary(inWindow(200, 420));
    EXPECT_TRUE(Desktop::waitUntil(ownMenu));
    m_desktop.press(Key::escape);
    EXPECT_TRUE(Desktop::waitUntil([&] { return !ownMenu(); }));
    m_desktop.clickSecondary(inWindow(200, 12));
    Desktop::wait(300);
    EXPECT_EQ(ownMenu(), !m_desktop.offers("_GTK_SHOW_WINDOW_MENU"))
        << "the upper edge is the window manager's";
    m_desktop.press(Key::escape);
    Desktop::wait(100);
}
