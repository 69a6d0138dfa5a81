#include "Platform/Controls/PopUpButton.h"
#include "Tidepool/Buttons/BackButton.h"
#include "Tidepool/Buttons/CornerButton.h"
#include "Tidepool/Buttons/DarkHighlightButton.h"
#include "Tidepool/Buttons/FavouriteCheckBox.h"
#include "Tidepool/Buttons/PopUpCyclingButton.h"
#include "Tidepool/Buttons/StyledCheckBox.h"
#include "Tidepool/Buttons/ToolButton.h"
#include "Tidepool/Buttons/VantorPushButton.h"
#include "Tidepool/Palette/TPImages.h"
#include "tests/desktop/Desktop.h"
#include "tests/support/ActionCounter.h"

#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

using namespace tidepool;

namespace {

/// All buttons of the kit in one window, each with the same target.
class ControlsTest : public testing::Test {
protected:
    ControlsTest() {
        add<StyledButton>();
        add<StyledCheckBox>();
        add<FavouriteCheckBox>();
        add<BackButton>();
        add<CornerButton>();
        add<CursorButton>();
        add<DarkHighlightButton>();
        add<PopUpCyclingButton>();
        add<ToolButton>();
        add<VantorPushButton>();
        m_window.resize(400, 300);
        m_window.show();
        EXPECT_TRUE(Desktop::waitUntil([this] { return m_window.isActiveWindow(); }));
    }

    template <typename Button>
    void add() {
        auto* const button = new Button;
        button->setParent(&m_window);
        const int index = static_cast<int>(m_buttons.size());
        button->setGeometry(20 + index % 4 * 90, 20 + index / 4 * 60, 60, 30);
        button->setObjectName(QString::fromLatin1(typeid(Button).name()));
        button->setAction(ActionCounter::first, &m_target);
        m_buttons.emplace_back(button);
    }

    QPoint inside(const QWidget& widget) { return widget.mapToGlobal(widget.rect().center()); }

    QPoint outside(const QWidget& widget) { return widget.mapToGlobal(QPoint(-10, 15)); }

    bool isPressed(const platform::PushButton& button, bool pressed) {
        return Desktop::waitUntil([&] { return button.isDown() == pressed; });
    }

    /// Presses inside, does `meanwhile`, releases at `where`, and tells how many actions were sent.
    int actions(platform::PushButton& button, QPoint where, const std::function<void()>& meanwhile) {
        const int before = m_target.count;
        m_desktop.pressPointer(inside(button));
        EXPECT_TRUE(isPressed(button, true));
        meanwhile();
        m_desktop.releasePointer(where);
        Desktop::wait(30);
        EXPECT_FALSE(button.isDown());
        return m_target.count - before;
    }

    template <typename Check>
    void forEach(Check check) {
        for (const QPointer<platform::PushButton>& button : m_buttons) {
            SCOPED_TRACE(button->objectName().toStdString());
            check(*button);
        }
    }

    Desktop m_desktop;
    ActionCounter m_target;
    QWidget m_window;
    std::vector<QPointer<platform::PushButton>> m_buttons;
};

} // namespace

TEST_F(ControlsTest, OnlyAReleaseInsideIsAClick) {
    forEach([&](platform::PushButton& button) {
        EXPECT_EQ(actions(button, inside(button), [] {}), 1);
        EXPECT_EQ(actions(button, outside(button),
                          [&] {
                              m_desktop.movePointer(outside(button));
                              EXPECT_TRUE(isPressed(button, false));
                          }),
                  0);
    });
}

TEST_F(ControlsTest, EscapeDisablingAndHidingCancelAPress) {
    forEach([&](platform::PushButton& button) {
        EXPECT_EQ(actions(button, inside(button),
                          [&] {
                              m_desktop.press(Key::escape);
                              EXPECT_TRUE(isPressed(button, false));
                          }),
                  0);
        EXPECT_EQ(actions(button, inside(button),
                          [&] {
                              button.setEnabled(false);
                              button.setEnabled(true);
                          }),
                  0);
        EXPECT_EQ(actions(button, inside(button),
                          [&] {
                              button.hide();
                              button.show();
                          }),
                  0);
        EXPECT_EQ(actions(button, inside(button), [] {}), 1) << "and then it works again";
    });
}

// The virtual screen has no touch screen: what one reports enters where Qt takes it from the X server.
TEST_F(ControlsTest, AFingerClicksAndSlidesOff) {
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    const auto finger = [&] { return QTest::touchEvent(m_window.windowHandle(), screen.get()); };
    forEach([&](platform::PushButton& button) {
        const QPoint onButton = button.geometry().center();
        const QPoint beside = button.geometry().topLeft() + QPoint(-10, 15);
        const int before = m_target.count;
        finger().press(0, onButton);
        EXPECT_TRUE(isPressed(button, true));
        finger().release(0, onButton);
        EXPECT_TRUE(Desktop::waitUntil([&] { return m_target.count == before + 1; }));
        finger().press(0, onButton);
        EXPECT_TRUE(isPressed(button, true));
        finger().move(0, beside);
        EXPECT_TRUE(isPressed(button, false));
        finger().release(0, beside);
        Desktop::wait(20);
        EXPECT_EQ(m_target.count, before + 1);
    });
}

TEST_F(ControlsTest, MayBeDestroyedWhilePressed) {
    for (QPointer<platform::PushButton>& button : m_buttons) {
        SCOPED_TRACE(button->objectName().toStdString());
        const QPoint position = inside(*button);
        m_desktop.pressPointer(position);
        EXPECT_TRUE(isPressed(*button, true));
        delete button.data();
        m_desktop.releasePointer(position);
        Desktop::wait(20);
    }
    EXPECT_EQ(m_target.count, 0);
}

TEST_F(ControlsTest, KeyboardReachesAndPressesEach) {
    m_buttons.front()->setFocus();
    forEach([&](platform::PushButton& button) {
        EXPECT_TRUE(Desktop::waitUntil([&] { return button.hasFocus(); }));
        const int before = m_target.count;
        m_desktop.press(Key::space);
        EXPECT_TRUE(Desktop::waitUntil([&] { return m_target.count == before + 1; }));
        m_desktop.press(Key::enter);
        EXPECT_TRUE(Desktop::waitUntil([&] { return m_target.count == before + 2; }));
        m_desktop.press(Key::tab);
    });
}

TEST_F(ControlsTest, MenusOpenAndChooseByPointerAndKeyboard) {
    platform::PopUpButton popUp(false, &m_window);
    for (const char16_t* const title : {u"Up", u"Down", u"Random"})
        popUp.addItem(QString::fromUtf16(title));
    popUp.setGeometry(20, 220, 120, 24);
    popUp.show();
    m_desktop.click(inside(popUp));
    ASSERT_TRUE(Desktop::waitUntil([&] { return popUp.menu()->isVisible(); }));
    Desktop::wait(50);
    m_desktop.press(Key::down);
    m_desktop.press(Key::enter);
    EXPECT_TRUE(Desktop::waitUntil([&] { return popUp.indexOfSelectedItem() == 1; }));

    platform::Menu menu;
    QAction& item = menu.addItem(QStringLiteral("Chord"));
    bool isChosen = false;
    QObject::connect(&item, &QAction::triggered, [&] { isChosen = true; });
    auto& corner = dynamic_cast<CornerButton&>(*m_buttons[4]);
    corner.setAlternateMenu(&menu);
    m_desktop.click(inside(corner));
    ASSERT_TRUE(Desktop::waitUntil([&] { return menu.isVisible(); }));
    Desktop::wait(50);
    m_desktop.click(menu.mapToGlobal(menu.actionGeometry(&item).center()));
    EXPECT_TRUE(Desktop::waitUntil([&] { return isChosen; }));
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(ControlsTest, APressThatOpensAMenuOrMovesTheWindowEndsThere) {
    platform::PushButton& button = *m_buttons.front();
    const auto whenPressed = [&](const std::function<void()>& take, const std::function<void()>& then) {
        QObject context;
        QObject::connect(&button, &QAbstractButton::pressed, &context, take);
        m_desktop.pressPointer(inside(button));
        then();
        m_desktop.movePointer(inside(button) + QPoint(5, 5));
        EXPECT_TRUE(isPressed(button, false));
    };
    const auto clicks = [&] {
        m_target.count = 0;
        m_desktop.click(inside(button));
        Desktop::wait(50);
        return m_target.count == 1;
    };
    platform::Menu menu;
    menu.addItem(QStringLiteral("Chord"));
    whenPressed([&] { menu.popup(outside(button) + QPoint(0, 60)); },
                [&] {
                    EXPECT_TRUE(Desktop::waitUntil([&] { return menu.isVisible(); }));
                    m_desktop.releasePointer(inside(button));
                    m_desktop.press(Key::escape);
                    EXPECT_TRUE(Desktop::waitUntil([&] { return !menu.isVisible(); })) << "by one Escape";
                });
    EXPECT_EQ(m_target.count, 0);
    EXPECT_TRUE(clicks());
    const QPoint before = m_window.pos();
    whenPressed([this] { m_window.windowHandle()->startSystemMove(); },
                [&] {
                    const QPoint start = inside(button);
                    for (int step = 1; step <= 5; ++step) {
                        m_desktop.movePointer(start + QPoint(10 * step, 0));
                        Desktop::wait(20);
                    }
                    m_desktop.releasePointer(start + QPoint(50, 0));
                    EXPECT_TRUE(Desktop::waitUntil([&] { return m_window.pos() != before; }));
                });
    EXPECT_TRUE(clicks());
}
