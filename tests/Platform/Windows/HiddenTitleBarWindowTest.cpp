#include "Platform/Windows/HiddenTitleBarWindow.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
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

TEST_F(HiddenTitleBarWindowTest, HasTheFixedSizeOfItsContent) {
    EXPECT_EQ(m_window.windowTitle(), QStringLiteral("Title"));
    EXPECT_TRUE(m_window.windowFlags().testFlag(Qt::FramelessWindowHint));
    m_window.resize(500, 400);
    m_window.setWindowState(Qt::WindowNoState);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_window.size(), QSize(300, 200));
    EXPECT_EQ(m_link->parentWidget()->geometry(), QRect(0, 0, 300, 200));
}

TEST_F(HiddenTitleBarWindowTest, ClosesByKeyAndComesBack) {
    QSignalSpy quits(qApp, &QCoreApplication::aboutToQuit);
    QTest::keyClick(&m_window, Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(m_window.isVisible());
    QTest::qWait(20);
    EXPECT_EQ(quits.count(), 0) << "the program goes on";
    m_window.makeKeyAndOrderFront();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    QTest::keyClick(&m_window, Qt::Key_M, Qt::ControlModifier);
    EXPECT_TRUE(m_window.isMinimized());
    m_window.makeKeyAndOrderFront();
    EXPECT_FALSE(m_window.isMinimized());
}

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

TEST_F(HiddenTitleBarWindowTest, TabVisitsEveryControlOnce) {
    EXPECT_EQ(QApplication::focusWidget(), &m_window) << "at first no control is marked";
    QList<QWidget*> visited;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited << QApplication::focusWidget();
    }
    const QSet<QWidget*> controls{m_link, button(QStringLiteral("Menu")), button(QStringLiteral("Minimize")),
                                  button(QStringLiteral("Close"))};
    EXPECT_EQ(QSet<QWidget*>(visited.begin(), visited.end()), controls);
    button(QStringLiteral("Close"))->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window.isVisible(); }));
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

TEST_F(HiddenTitleBarWindowTest, ButtonsShowThemselvesToThePointerAndTheKeyboard) {
    const auto hasInk = [this] {
        const QImage image = button(QStringLiteral("Close"))->grab().toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != image.pixel(0, 0))
                    return true;
        return false;
    };
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&m_window, &leave);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hasInk(); }, 1000));
    QEnterEvent enter({50, 50}, {50, 50}, {50, 50});
    QApplication::sendEvent(&m_window, &enter);
    EXPECT_TRUE(QTest::qWaitFor(hasInk, 1000));
    QApplication::sendEvent(&m_window, &leave);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hasInk(); }, 1000));
    button(QStringLiteral("Menu"))->setFocus();
    EXPECT_TRUE(QTest::qWaitFor(hasInk, 1000));
    m_window.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hasInk(); }, 1000));
    m_window.openMenu();
    EXPECT_TRUE(QTest::qWaitFor(hasInk, 1000));
    QApplication::sendEvent(&m_window, &leave);
    QTest::qWait(300);
    EXPECT_TRUE(hasInk()) << "the menu belongs to one of them";
    m_menu.close();
    QTest::qWait(50); // the pointer comes back first
    QApplication::sendEvent(&m_window, &leave);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !hasInk(); }, 1000));
}
