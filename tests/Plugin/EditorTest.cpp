// The editor in a host that knows nothing of Qt: a plain X11 window, a pointer and an idle loop.
#include "tests/Plugin/EditorHost.h"

#include <gmock/gmock.h>

#include <unistd.h>

#include <clocale>
#include <filesystem>
#include <functional>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int longerThanAnEcho = 120; // turns
constexpr std::uint32_t transposePort = 2;
constexpr std::uint32_t holdPort = 5;
constexpr std::uint32_t pagePort = 7;

class EditorTest : public testing::Test {
protected:
    // The first dial's middle, and the hold button's.
    static constexpr std::int16_t dialX = 70;
    static constexpr std::int16_t dialY = 110;
    static constexpr std::int16_t holdX = 630;
    static constexpr std::int16_t holdY = 110;
    static constexpr std::int16_t valueY = 182; // below the dial
    static constexpr std::uint16_t editorHeight = 220;

    void drag(EditorHost& host, int upwards, const std::function<void()>& meanwhile = {}) {
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

    void click(EditorHost& host, std::int16_t x, std::int16_t y) {
        m_screen.movePointer(x, y);
        m_screen.press();
        host.idle();
        m_screen.release();
        host.idle();
    }

    void type(EditorHost& host, std::initializer_list<std::uint8_t> keyCodes) {
        for (const auto code : keyCodes)
            m_screen.pressKey(code);
        host.idle();
    }

    X11Screen m_screen;
};

// Codes of keys on every Xvfb.
constexpr std::uint8_t escapeKey = 9;
constexpr std::uint8_t tabKey = 23;
constexpr int tabsToHold = 12;
constexpr std::uint8_t sevenKey = 16;
constexpr std::uint8_t returnKey = 36;

} // namespace

TEST_F(EditorTest, AppearsWithoutAWordToTheHostAndLeavesItsLocaleAlone) {
    std::setlocale(LC_ALL, "C");
    EditorHost host(m_screen);
    host.idle(20);
    EXPECT_THAT(host.take(), IsEmpty());
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
    EXPECT_EQ(std::getenv("QT_NO_GLIB"), nullptr);
    EXPECT_EQ(editorDescriptor().instantiate(&editorDescriptor(), "", NOTELOFT_EDITOR_FOLDER, nullptr,
                                             nullptr, nullptr, nullptr),
              nullptr)
        << "a host without a window for it";
}

TEST_F(EditorTest, ADragIsATouchValuesAndARelease) {
    EditorHost host(m_screen);
    host.idle(20);
    drag(host, 50);
    EXPECT_THAT(host.take(), ElementsAre("touch 2", "2=0", "2=12", "2=12", "release 2"));
}

TEST_F(EditorTest, TheHandWinsAndTheHostsLastValueShowsAfterwards) {
    EditorHost host(m_screen);
    host.idle(20);
    host.send(transposePort, 6);
    EXPECT_THAT(host.take(), IsEmpty());
    drag(host, 25, [&] { host.send(transposePort, -10); });
    EXPECT_THAT(host.take(), ElementsAre("touch 2", "2=6", "2=12", "2=12", "release 2"));
    host.idle(longerThanAnEcho);
    drag(host, 25);
    EXPECT_THAT(host.take(), ElementsAre("touch 2", "2=-10", "2=-4", "2=-4", "release 2"));
}

TEST_F(EditorTest, HoldIsOneWhileItIsHeld) {
    EditorHost host(m_screen);
    host.idle(20);
    m_screen.movePointer(holdX, holdY);
    m_screen.press();
    host.idle();
    EXPECT_THAT(host.take(), ElementsAre("touch 5", "5=1"));
    host.send(holdPort, 1);
    m_screen.release();
    host.idle();
    EXPECT_THAT(host.take(), ElementsAre("5=0", "release 5"));
}

TEST_F(EditorTest, PagesFollowTheTabsAndTheHost) {
    constexpr std::int16_t secondTabX = 351;
    constexpr std::int16_t tabY = 23;
    EditorHost host(m_screen);
    host.idle(20);
    m_screen.movePointer(secondTabX, tabY);
    m_screen.press();
    host.idle();
    m_screen.release();
    host.idle();
    EXPECT_THAT(host.take(), ElementsAre("touch 7", "7=1", "release 7"));
    drag(host, 50);
    EXPECT_THAT(host.take(), ElementsAre("touch 10", "10=0", "10=3", "10=3", "release 10")) << "the chord";
    host.idle(longerThanAnEcho);
    host.send(pagePort, 2);
    drag(host, 50);
    EXPECT_THAT(host.take(), ElementsAre("touch 3", "3=100", "3=150", "3=150", "release 3"))
        << "the velocity";
}

TEST_F(EditorTest, BorrowsTheKeyboardOnlyWhileAValueIsTyped) {
    EditorHost host(m_screen);
    host.idle(20);
    m_screen.setFocus(host.window());
    drag(host, 25);
    EXPECT_EQ(m_screen.focus(), host.window()) << "the host's keys still work";
    host.take();

    click(host, dialX, valueY);
    EXPECT_EQ(m_screen.focus(), host.editorWindow());
    type(host, {sevenKey, returnKey});
    EXPECT_THAT(host.take(), ElementsAre("touch 2", "2=7", "release 2"));
    EXPECT_EQ(m_screen.focus(), host.window());

    click(host, dialX, valueY);
    type(host, {sevenKey, sevenKey, escapeKey});
    EXPECT_THAT(host.take(), IsEmpty());
    EXPECT_EQ(m_screen.focus(), host.window());
}

TEST_F(EditorTest, KeysThatAHostPassesOnEndWithItsWindow) {
    const std::uint32_t other = m_screen.makeWindow(400);
    EditorHost host(m_screen);
    host.idle(20);
    const auto pass = [&](std::uint8_t key, bool isPress) {
        m_screen.passOn(host.editorWindow(), key, isPress);
        host.idle(3);
    };
    for (int round = 0; round < 2; ++round) {
        m_screen.setFocus(host.window());
        m_screen.activate(host.editorWindow());
        host.idle();
        for (int tab = 0; round == 0 && tab < tabsToHold; ++tab) {
            pass(tabKey, true);
            pass(tabKey, false);
        }
        for (int repeat = 0; repeat < 3; ++repeat)
            pass(returnKey, true);
        EXPECT_THAT(host.take(), ElementsAre("touch 5", "5=1")) << "a repeat is no other press";
        m_screen.setFocus(other);
        host.idle();
        EXPECT_THAT(host.take(), ElementsAre("5=0", "release 5"));
        pass(returnKey, false);
        host.idle();
        EXPECT_THAT(host.take(), IsEmpty());
    }
    m_screen.destroyWindow(other);
}

TEST_F(EditorTest, AClickInTheHostClosesAFieldThoughTheKeyboardStays) {
    EditorHost host(m_screen);
    host.idle(20);
    m_screen.setFocus(host.window());
    const auto closed = m_screen.picture(host.window(), editorHeight);
    click(host, dialX, valueY);
    EXPECT_NE(m_screen.picture(host.window(), editorHeight), closed);
    click(host, dialX, editorHeight + 40);
    EXPECT_EQ(m_screen.picture(host.window(), editorHeight), closed);
    EXPECT_EQ(m_screen.focus(), host.window());
}

TEST_F(EditorTest, TheKeyboardComesBackWithAClickAndGoesWithTheEditor) {
    const std::uint32_t other = m_screen.makeWindow(400);
    EditorHost host(m_screen);
    host.idle(20);
    const auto closed = m_screen.picture(host.window(), editorHeight);
    m_screen.setFocus(host.window());
    click(host, dialX, valueY);
    type(host, {sevenKey});
    EXPECT_NE(m_screen.picture(host.window(), editorHeight), closed);
    m_screen.setFocus(other);
    host.idle(120); // some systems take the keyboard away and give it back at once, so Qt waits
    EXPECT_EQ(m_screen.picture(host.window(), editorHeight), closed) << "no value that is not in force";
    EXPECT_THAT(host.take(), IsEmpty());
    EXPECT_EQ(m_screen.focus(), other) << "the keyboard belongs to another program now";
    click(host, dialX, valueY);
    EXPECT_EQ(m_screen.focus(), host.editorWindow());
    host.close(false);
    EXPECT_EQ(m_screen.focus(), other);
    m_screen.destroyWindow(other);
}

TEST_F(EditorTest, OpensAndClosesAHundredTimesInBothOrders) {
    for (int i = 0; i < 100; ++i) {
        EditorHost host(m_screen);
        host.idle(2);
        host.close(i % 2 == 0);
    }
}

TEST_F(EditorTest, TwoAtOnceDoNotHearOfEachOther) {
    EditorHost first(m_screen);
    EditorHost second(m_screen, 400);
    first.idle(20);
    drag(first, 50);
    EXPECT_FALSE(first.take().empty());
    EXPECT_THAT(second.take(), IsEmpty());
    first.close(true);
    second.idle();
    m_screen.movePointer(holdX, 400 + holdY);
    m_screen.press();
    second.idle();
    EXPECT_THAT(second.take(), ElementsAre("touch 5", "5=1"));
    m_screen.release();
    second.idle();
}

// Also run on a screen with twice the pixels.
TEST_F(EditorTest, TellsItsSizeInPixelsAtEveryScale) {
    const char* const factor = std::getenv("QT_SCALE_FACTOR");
    const int desktop = factor == nullptr ? 1 : std::atoi(factor);
    EditorHost plain(m_screen);
    plain.idle(20);
    const auto natural = plain.takeSizes();
    ASSERT_EQ(natural.size(), 1U);
    EXPECT_EQ(natural[0].first, 700 * desktop);
    EXPECT_EQ(m_screen.size(plain.editorWindow()), natural[0]);
    EXPECT_EQ(plain.scale(), static_cast<float>(desktop));
    plain.close(false);

    EditorHost host(m_screen, 0, editorDescriptor(), 1.5F);
    host.idle(20);
    const auto sizes = host.takeSizes();
    ASSERT_EQ(sizes.size(), 1U);
    EXPECT_EQ(sizes[0].first, 1050);
    EXPECT_NEAR(sizes[0].second, natural[0].second * 1.5 / desktop, 3);
    EXPECT_EQ(m_screen.size(host.editorWindow()), sizes[0]);
    EXPECT_EQ(host.setScale(1), LV2_OPTIONS_SUCCESS) << "while it is open";
    EXPECT_EQ(host.setScale(0), LV2_OPTIONS_ERR_BAD_VALUE);
    host.idle(20);
    EXPECT_EQ(host.takeSizes().back().first, 700);
    EXPECT_EQ(m_screen.size(host.editorWindow()).first, 700);
    EXPECT_EQ(host.scale(), 1);
    drag(host, 50);
    EXPECT_THAT(host.take(), ElementsAre("touch 2", "2=0", "2=12", "2=12", "release 2"));
}

// The application object may be that of another plug-in, whose editor has gone.
TEST_F(EditorTest, LivesOnAnotherPluginsApplication) {
    EditorHost(m_screen).idle(2);
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
        EditorHost other(m_screen, 0, loadEditor(library.c_str()));
        other.idle(20);
        drag(other, 50);
        EXPECT_THAT(other.take(), ElementsAre("touch 2", "2=0", "2=12", "2=12", "release 2"));
    }
    fs::remove_all(folder);
}
