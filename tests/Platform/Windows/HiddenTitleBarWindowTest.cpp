#include "Platform/Windows/HiddenTitleBarWindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using platform::HiddenTitleBarWindow;

namespace {

class HiddenTitleBarWindowTest : public testing::Test {
protected:
    HiddenTitleBarWindowTest() {
        QApplication::setQuitOnLastWindowClosed(false);
        m_menu.addAction(QStringLiteral("About"));
        m_menu.addAction(QStringLiteral("Quit"));
        m_window.makeKeyAndOrderFront();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    static QWidget* makeContent(QPushButton*& link) {
        auto* const content = new QWidget;
        content->resize(300, 200);
        link = new QPushButton(QStringLiteral("Link"), content);
        link->move(20, 120);
        return content;
    }

    QAbstractButton* button(const QString& accessibleName) {
        const auto buttons = m_window.findChildren<QAbstractButton*>();
        for (auto* each : buttons)
            if (each->accessibleName() == accessibleName)
                return each;
        return nullptr;
    }

    QPushButton* m_link = nullptr;
    QMenu m_menu;
    HiddenTitleBarWindow m_window{QStringLiteral("Title"), makeContent(m_link), &m_menu};
};

} // namespace

TEST_F(HiddenTitleBarWindowTest, MenuOpensAtItsFirstItemWhicheverWindowIsInFront) {
    m_window.openMenu();
    EXPECT_TRUE(m_menu.isVisible());
    EXPECT_EQ(m_menu.activeAction(), m_menu.actions().constFirst());
    EXPECT_GE(m_menu.y(), m_window.y() + button(QStringLiteral("Menu"))->height());
    QTest::keyClick(&m_menu, Qt::Key_Escape);
    EXPECT_FALSE(m_menu.isVisible());
    QTest::mouseClick(button(QStringLiteral("Menu")), Qt::LeftButton);
    EXPECT_TRUE(m_menu.isVisible());
    m_menu.close();
    QWidget other;
    other.setGeometry(500, 300, 100, 100);
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    m_window.openMenu();
    EXPECT_TRUE(other.frameGeometry().contains(m_menu.pos())) << m_menu.x() << ", " << m_menu.y();
}

TEST_F(HiddenTitleBarWindowTest, ButtonsAreNamedForAssistiveTechnology) {
    for (const auto& name : {QStringLiteral("Menu"), QStringLiteral("Minimize"), QStringLiteral("Close")}) {
        ASSERT_NE(button(name), nullptr);
        const auto* const accessible = QAccessible::queryAccessibleInterface(button(name));
        EXPECT_EQ(accessible->role(), QAccessible::Button);
        EXPECT_EQ(accessible->text(QAccessible::Name), name);
    }
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&m_window)->text(QAccessible::Name),
              QStringLiteral("Title"));
}
