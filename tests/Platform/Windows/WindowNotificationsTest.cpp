#include "Platform/Windows/WindowNotifications.h"

#include <QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>

using platform::WindowNotifications;

namespace {

class WindowNotificationsTest : public testing::Test {
protected:
    WindowNotificationsTest() {
        m_first->setObjectName(QStringLiteral("1"));
        m_second.setObjectName(QStringLiteral("2"));
        auto& notifications = WindowNotifications::shared();
        m_connections = {QObject::connect(&notifications, &WindowNotifications::didBecomeKey,
                                          [this](QWidget* window) { note('+', window); }),
                         QObject::connect(&notifications, &WindowNotifications::didResignKey,
                                          [this](QWidget* window) { note('-', window); })};
    }

    ~WindowNotificationsTest() override {
        for (const auto& connection : m_connections)
            QObject::disconnect(connection);
    }

    void note(char sign, const QWidget* window) { m_log += sign + window->objectName().toStdString(); }

    void activate(QWidget& window) {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    std::unique_ptr<QWidget> m_first = std::make_unique<QWidget>();
    QWidget m_second;
    QList<QMetaObject::Connection> m_connections;
    std::string m_log;
};

} // namespace

TEST_F(WindowNotificationsTest, FirstResignsBeforeTheNextBecomesKey) {
    activate(*m_first);
    EXPECT_EQ(m_log, "+1");
    activate(m_second);
    EXPECT_EQ(m_log, "+1-1+2");
    EXPECT_EQ(WindowNotifications::shared().keyWindow(), &m_second);
    activate(*m_first);
    EXPECT_EQ(m_log, "+1-1+2-2+1");
}

TEST_F(WindowNotificationsTest, ADestroyedWindowIsForgotten) {
    activate(*m_first);
    m_first.reset();
    QTest::qWait(20);
    EXPECT_EQ(WindowNotifications::shared().keyWindow(), nullptr);
    m_log.clear();
    activate(m_second);
    EXPECT_EQ(m_log, "+2");
}
