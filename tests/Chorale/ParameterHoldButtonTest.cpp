#include "Chorale/ParameterHoldButton.h"

#include "Chorale/Assets.h"
#include "tests/Chorale/HostWatch.h"

#include <QAccessible>
#include <QLineEdit>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

using chorale::ParameterHoldButton;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ParameterHoldButtonTest : public testing::Test {
protected:
    ParameterHoldButtonTest() {
        m_button.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_button));
    }

    HostWatch m_host{platform::AudioUnitParameterUnit::boolean, 1, 0};
    ParameterHoldButton m_button{m_host.parameter, chorale::Images::quillfenLogo,
                                 chorale::Images::quillfenLogo};
};

} // namespace

TEST_F(ParameterHoldButtonTest, IsOneWhileHeldWhereverThePointerGoes) {
    QTest::mousePress(&m_button, Qt::LeftButton);
    EXPECT_TRUE(m_button.isPressed());
    EXPECT_THAT(m_host.take(), ElementsAre("value 1"));
    EXPECT_FALSE(m_host.parameter->isBeingInteractivelyEdited());
    QMouseEvent away(QEvent::MouseMove, {500, 500}, {500, 500}, Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&m_button, &away);
    EXPECT_TRUE(m_button.isPressed());
    QTest::mouseRelease(&m_button, Qt::LeftButton, {}, {500, 500});
    EXPECT_FALSE(m_button.isPressed());
    EXPECT_THAT(m_host.take(), ElementsAre("value 0"));
}

TEST_F(ParameterHoldButtonTest, LetsGoHoweverThePressEnds) {
    const auto lastAfter = [&](const std::function<void()>& end) {
        QTest::mousePress(&m_button, Qt::LeftButton);
        HostWatch::turn();
        end();
        return m_host.take().back();
    };
    EXPECT_EQ(lastAfter([&] { m_button.setEnabled(false); }), "value 0");
    m_button.setEnabled(true);
    EXPECT_EQ(lastAfter([&] { QTest::keyClick(&m_button, Qt::Key_Escape); }), "value 0");
    EXPECT_EQ(lastAfter([&] { m_button.hide(); }), "value 0");
    auto* const other = new ParameterHoldButton(m_host.parameter, chorale::Images::quillfenLogo,
                                                chorale::Images::quillfenLogo);
    QTest::mousePress(other, Qt::LeftButton);
    HostWatch::turn();
    delete other;
    EXPECT_EQ(m_host.take().back(), "value 0");
}

TEST_F(ParameterHoldButtonTest, LetsGoWhenTheKeyWillBeReleasedElsewhere) {
    QLineEdit other;
    other.show();
    const auto heardAfter = [&](const std::function<void()>& leave) {
        m_button.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_button));
        m_button.setFocus();
        QTest::keyPress(&m_button, Qt::Key_Return);
        HostWatch::turn();
        leave();
        return m_host.take();
    };
    EXPECT_THAT(heardAfter([&] {
                    other.activateWindow();
                    EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
                }),
                ElementsAre("value 1", "value 0"));
    EXPECT_THAT(heardAfter([&] { m_button.clearFocus(); }), ElementsAre("value 1", "value 0"));
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QApplication::sendEvent(&m_button, &repeated);
    EXPECT_THAT(m_host.take(), IsEmpty()) << "no new press, though the key is down still";
}

TEST_F(ParameterHoldButtonTest, AHeldKeyIsOnePress) {
    QTest::keyPress(&m_button, Qt::Key_Return);
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress, QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent repeated(type, Qt::Key_Return, {}, {}, true);
        QApplication::sendEvent(&m_button, &repeated);
        EXPECT_TRUE(repeated.isAccepted());
        HostWatch::turn();
        EXPECT_TRUE(m_button.isPressed());
    }
    QTest::keyRelease(&m_button, Qt::Key_Return);
    EXPECT_THAT(m_host.take(), ElementsAre("value 1", "value 0"));
}

TEST_F(ParameterHoldButtonTest, AssistiveTechnologyHoldsAndLetsGo) {
    auto* const interface = QAccessible::queryAccessibleInterface(&m_button);
    EXPECT_EQ(interface->role(), QAccessible::Button);
    const QString press = QAccessibleActionInterface::pressAction();
    ASSERT_EQ(interface->actionInterface()->actionNames(), QStringList{press});
    interface->actionInterface()->doAction(press);
    EXPECT_THAT(m_host.take(), ElementsAre("value 1"));
    EXPECT_EQ(interface->text(QAccessible::Value), QStringLiteral("On"));
    EXPECT_TRUE(interface->state().pressed);
    interface->actionInterface()->doAction(press);
    EXPECT_THAT(m_host.take(), ElementsAre("value 0"));
    EXPECT_FALSE(interface->state().pressed);
    m_button.setEnabled(false);
    interface->actionInterface()->doAction(press);
    EXPECT_THAT(m_host.take(), IsEmpty());
}

TEST_F(ParameterHoldButtonTest, FollowsTheHostExactly) {
    m_host.send(1);
    EXPECT_TRUE(m_button.isPressed());
    m_host.send(0.5);
    EXPECT_FALSE(m_button.isPressed());
    m_host.send(1);
    const ParameterHoldButton late(m_host.parameter, chorale::Images::quillfenLogo,
                                   chorale::Images::quillfenLogo);
    EXPECT_TRUE(late.isPressed());
}

TEST_F(ParameterHoldButtonTest, ReturnHoldsAndSpaceIsLeftToTheHost) {
    QTest::keyPress(&m_button, Qt::Key_Return);
    EXPECT_THAT(m_host.take(), ElementsAre("value 1"));
    QTest::keyRelease(&m_button, Qt::Key_Return);
    EXPECT_THAT(m_host.take(), ElementsAre("value 0"));
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, {});
    QApplication::sendEvent(&m_button, &space);
    EXPECT_FALSE(space.isAccepted());
}
