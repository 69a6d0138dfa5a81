#include "Chorale/ChoiceLabel.h"
#include "Platform/Controls/Menu.h"
#include "tests/Chorale/HostWatch.h"

#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using chorale::ChoiceLabel;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ChoiceLabelTest : public testing::Test {
protected:
    ChoiceLabelTest() {
        m_label.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_label));
    }

    platform::Menu* menu() const { return qobject_cast<platform::Menu*>(QApplication::activePopupWidget()); }

    HostWatch m_host{platform::AudioUnitParameterUnit::indexed, 2, 1,
                     QStringList{QStringLiteral("Up"), QStringLiteral("Down"), QStringLiteral("Alternate")}};
    ChoiceLabel m_label{m_host.parameter, Qt::gray, Qt::black, 12, 16};
};

} // namespace

TEST_F(ChoiceLabelTest, AChoiceIsOneGesture) {
    QTest::mouseClick(&m_label, Qt::LeftButton);
    ASSERT_NE(menu(), nullptr);
    const auto items = menu()->items();
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[1]->state(), platform::MenuItem::State::on);
    EXPECT_EQ(items[2]->state(), platform::MenuItem::State::off);
    EXPECT_EQ(menu()->activeAction(), items[1]);
    QTest::keyClick(menu(), Qt::Key_Down);
    QTest::keyClick(menu(), Qt::Key_Return);
    EXPECT_THAT(m_host.take(), ElementsAre("touch 1", "value 2", "release 2"));
    EXPECT_EQ(m_label.valueText(), QStringLiteral("Alternate"));
}

TEST_F(ChoiceLabelTest, TheKeyboardOpensTheMenuAndEscapeWritesNothing) {
    QTest::keyClick(&m_label, Qt::Key_Space);
    EXPECT_EQ(menu(), nullptr) << "left to the host";
    QTest::keyClick(&m_label, Qt::Key_Return);
    ASSERT_NE(menu(), nullptr);
    QTest::keyClick(menu(), Qt::Key_Escape);
    EXPECT_EQ(menu(), nullptr);
    EXPECT_THAT(m_host.take(), IsEmpty());
}

TEST_F(ChoiceLabelTest, MayGoWhileItsMenuIsOpen) {
    auto label = std::make_unique<ChoiceLabel>(m_host.parameter, Qt::gray, Qt::black, 12, 16);
    label->show();
    QTest::keyClick(label.get(), Qt::Key_F2);
    ASSERT_NE(menu(), nullptr);
    label.reset();
    EXPECT_EQ(menu(), nullptr);
    EXPECT_THAT(m_host.take(), IsEmpty());
}
