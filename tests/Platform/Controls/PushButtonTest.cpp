#include "Platform/Controls/PushButton.h"
#include "tests/support/ActionCounter.h"

#include <QAccessible>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using platform::ButtonCell;
using platform::ControlState;
using platform::PushButton;

namespace {

QAccessibleInterface& accessible(PushButton& button) {
    return *QAccessible::queryAccessibleInterface(&button);
}

} // namespace

TEST(PushButton, StateGoesRoundAsItsTypeSays) {
    PushButton button;
    QSignalSpy changes(&button, &PushButton::stateChanged);
    button.click();
    EXPECT_EQ(button.state(), ControlState::off) << "a momentary button has no state";
    button.cell().setButtonType(ButtonCell::ButtonType::toggle);
    button.cell().setAllowsMixedState(true);
    for (const ControlState state : {ControlState::mixed, ControlState::on, ControlState::off}) {
        button.click();
        EXPECT_EQ(button.state(), state);
    }
    EXPECT_EQ(changes.count(), 3);
}

TEST(PushButton, MnemonicPressesAndIsNotPartOfTheTitle) {
    QWidget window;
    PushButton button(QStringLiteral("Cut && &Paste"), &window);
    EXPECT_EQ(button.plainTitle(), QStringLiteral("Cut & Paste"));
    QSignalSpy clicks(&button, &PushButton::clicked);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return clicks.count() == 1; }));
}

TEST(PushButton, RepeatsWhileHeldIfAsked) {
    PushButton button;
    ActionCounter target;
    button.setAction(ActionCounter::first, &target);
    button.setAutoRepeat(true);
    button.setAutoRepeatDelay(10);
    button.setAutoRepeatInterval(10);
    button.resize(40, 24);
    button.show();
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] { return target.count >= 3; }));
    button.hide();
    const int sent = target.count;
    QTest::qWait(50);
    EXPECT_EQ(target.count, sent);
}

TEST(PushButton, TellsAssistiveTechnologyWhatItIs) {
    PushButton button(QStringLiteral("&Mute"));
    EXPECT_EQ(accessible(button).role(), QAccessible::Button);
    EXPECT_EQ(accessible(button).text(QAccessible::Name), QStringLiteral("Mute"));
    EXPECT_FALSE(accessible(button).state().checkable);
    const QString keys = QKeySequence(Qt::ALT | Qt::Key_M).toString(QKeySequence::NativeText);
    EXPECT_EQ(accessible(button).text(QAccessible::Accelerator), keys);
    EXPECT_EQ(
        accessible(button).actionInterface()->keyBindingsForAction(QAccessibleActionInterface::pressAction()),
        QStringList{keys});
    button.setAccessibleName(QStringLiteral("Mute the track"));
    EXPECT_EQ(accessible(button).text(QAccessible::Name), QStringLiteral("Mute the track"));

    button.cell().setButtonType(ButtonCell::ButtonType::switchButton);
    button.setBordered(false);
    button.setState(ControlState::mixed);
    EXPECT_EQ(accessible(button).role(), QAccessible::CheckBox);
    EXPECT_TRUE(accessible(button).state().checkStateMixed);
    EXPECT_FALSE(accessible(button).state().checked);
    QAccessibleActionInterface* const actions = accessible(button).actionInterface();
    ASSERT_EQ(actions->actionNames(), QStringList{QAccessibleActionInterface::toggleAction()});
    actions->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(accessible(button).state().checked);
    button.setEnabled(false);
    EXPECT_TRUE(actions->actionNames().isEmpty());

    QMenu menu;
    menu.addAction(QStringLiteral("Item"));
    PushButton opener;
    opener.setMenu(&menu);
    opener.show();
    EXPECT_EQ(accessible(opener).role(), QAccessible::ButtonMenu);
    EXPECT_TRUE(accessible(opener).state().hasPopup);
    accessible(opener).actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(menu.isVisible());
}

TEST(PushButton, IsHighlightedWhileItsMenuIsOpenAndWhenThatHasGone) {
    auto menu = std::make_unique<QMenu>();
    menu->addAction(QStringLiteral("Item"));
    PushButton button;
    button.setMenu(menu.get());
    button.resize(40, 24);
    button.show();
    const auto isHighlighted = [&] {
        return button.context().state.contains(platform::StyledControlState::highlighted);
    };
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&button, &key);
    EXPECT_TRUE(menu->isVisible() && isHighlighted());
    menu->close();
    EXPECT_FALSE(isHighlighted());
    QTest::mousePress(&button, Qt::RightButton);
    EXPECT_TRUE(isHighlighted());
    menu.reset();
    EXPECT_FALSE(isHighlighted());
}
