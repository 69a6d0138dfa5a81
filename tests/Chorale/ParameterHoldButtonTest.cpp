#include "Chorale/ParameterHoldButton.h"

#include "Chorale/AssetResources.h"
#include "tests/Chorale/HostWatch.h"

#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using chorale::ParameterHoldButton;
using testing::ElementsAre;

namespace {

class ParameterHoldButtonTest : public testing::Test {
protected:
    ParameterHoldButtonTest() {
        m_button.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_button));
    }

    HostWatch m_host{platform::AudioUnitParameterUnit::boolean, 1, 0};
    ParameterHoldButton m_button{m_host.parameter, chorale::EditorAssets::quillfenLogo,
                                 chorale::EditorAssets::quillfenLogo};
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
    auto* const other = new ParameterHoldButton(m_host.parameter, chorale::EditorAssets::quillfenLogo,
                                                chorale::EditorAssets::quillfenLogo);
    QTest::mousePress(other, Qt::LeftButton);
    HostWatch::turn();
    delete other;
    EXPECT_EQ(m_host.take().back(), "value 0");
}

TEST_F(ParameterHoldButtonTest, IsAButtonToAssistiveTechnology) {
    auto* const interface = QAccessible::queryAccessibleInterface(&m_button);
    EXPECT_EQ(interface->role(), QAccessible::Button);
    m_host.send(1);
    EXPECT_EQ(interface->text(QAccessible::Value), QStringLiteral("On"));
}

TEST_F(ParameterHoldButtonTest, FollowsTheHostExactly) {
    m_host.send(1);
    EXPECT_TRUE(m_button.isPressed());
    m_host.send(0.5);
    EXPECT_FALSE(m_button.isPressed());
    m_host.send(1);
    const ParameterHoldButton late(m_host.parameter, chorale::EditorAssets::quillfenLogo,
                                   chorale::EditorAssets::quillfenLogo);
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

TEST(ParameterHoldButton, ARangeWithoutOneIsClamped) {
    HostWatch host(platform::AudioUnitParameterUnit::generic, 0.5, 0);
    ParameterHoldButton button(host.parameter, chorale::EditorAssets::quillfenLogo,
                               chorale::EditorAssets::quillfenLogo);
    QTest::mousePress(&button, Qt::LeftButton);
    EXPECT_THAT(host.take(), ElementsAre("value 0.5"));
    EXPECT_FALSE(button.isPressed()) << "once the value has arrived";
}
