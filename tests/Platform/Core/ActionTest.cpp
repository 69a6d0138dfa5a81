#include "Platform/Core/Action.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>

using platform::Selector;
using platform::sendAction;
using platform::targetForAction;

namespace {

constexpr Selector play{"play"};
constexpr Selector stop{"stop"};

class Player : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;
    QPointer<QObject> sender;
    int plays = 0;

public Q_SLOTS:

    void play(QObject* from) {
        sender = from;
        ++plays;
    }

    /// Not an action: it takes no sender.
    void stop() {}
};

class ActionTest : public testing::Test {
protected:
    ActionTest() : m_window(std::make_unique<Player>()), m_panel(m_window.get()), m_field(&m_panel) {
        platform::setApplicationDelegate(&m_delegate);
    }

    ~ActionTest() override { platform::setApplicationDelegate(nullptr); }

    void focusField() {
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
        m_field.setFocusPolicy(Qt::StrongFocus);
        m_field.setFocus();
        ASSERT_EQ(QApplication::focusWidget(), &m_field);
    }

    Player m_delegate;
    std::unique_ptr<Player> m_window;
    QWidget m_panel;
    Player m_field;
};

} // namespace

TEST_F(ActionTest, GoesToTheNearestResponderOfTheFocus) {
    focusField();
    EXPECT_EQ(targetForAction(play), &m_field);
    m_panel.setFocusPolicy(Qt::StrongFocus);
    m_panel.setFocus();
    EXPECT_EQ(targetForAction(play), m_window.get()) << "the panel does not respond, its window does";
    m_panel.clearFocus();
    ASSERT_EQ(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(targetForAction(play), m_window.get()) << "without a focus the active window is asked";
}

TEST_F(ActionTest, ComesToTheDelegateLast) {
    EXPECT_EQ(targetForAction(play), &m_delegate);
    QObject sender;
    EXPECT_TRUE(sendAction(play, nullptr, &sender));
    EXPECT_EQ(m_delegate.sender, &sender);
    EXPECT_FALSE(sendAction(stop, nullptr, &sender)) << "a slot without a sender is no action";
    platform::setApplicationDelegate(nullptr);
    EXPECT_FALSE(sendAction(play, nullptr, &sender));
    {
        const auto shortLived = std::make_unique<Player>();
        platform::setApplicationDelegate(shortLived.get());
    }
    EXPECT_FALSE(sendAction(play, nullptr, &sender)) << "a delegate that is gone is nobody";
}

TEST_F(ActionTest, WithATargetAsksNobodyElse) {
    focusField();
    EXPECT_TRUE(sendAction(play, m_window.get(), nullptr));
    EXPECT_EQ(m_window->plays, 1);
    EXPECT_EQ(m_window->sender, nullptr);
    EXPECT_FALSE(sendAction(play, &m_panel, nullptr));
    EXPECT_EQ(m_field.plays + m_delegate.plays, 0);
}

#include "ActionTest.moc"
