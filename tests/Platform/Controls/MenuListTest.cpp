#include "Platform/Controls/MenuList.h"

#include "Platform/Controls/ListView.h"
#include "Platform/Controls/PopUpButton.h"
#include "tests/support/Pixels.h"

#include <QApplication>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using namespace platform;

namespace {

constexpr int count = 1200;

class MenuListTest : public testing::Test {
protected:
    MenuListTest() {
        m_window.resize(300, 200);
        m_window.move(200, 200);
        m_button->setGeometry(60, 100, 120, 24);
        auto menu = std::make_unique<Menu>();
        for (int i = 0; i < count; ++i)
            menu->addItem(QStringLiteral("Patch %1").arg(i));
        m_button->setMenu(std::move(menu));
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        QObject::connect(m_button, &PopUpButton::itemChosen, m_button,
                         [this](const MenuItem* item) { m_chosen << item->title(); });
    }

    MenuItem& item(int index) { return *m_button->itemArray()[index]; }

    MenuList& open(int selected) {
        m_button->selectItem(selected);
        QTest::mousePress(m_button, Qt::LeftButton);
        auto* const list = qobject_cast<MenuList*>(QApplication::activePopupWidget());
        EXPECT_NE(list, nullptr);
        return *list;
    }

    static ListView& viewOf(const MenuList& list) { return *list.findChild<ListView*>(); }

    static QRect frameOf(const MenuList& list, int row) {
        const ListView& view = viewOf(list);
        const QRect rect = view.visualRect(view.model()->index(row, 0));
        return {view.viewport()->mapToGlobal(rect.topLeft()), rect.size()};
    }

    static void move(const MenuList& list, int row) {
        QWidget* const target = viewOf(list).viewport();
        const QPointF global(frameOf(list, row).center());
        QMouseEvent event(QEvent::MouseMove, target->mapFromGlobal(global), global, Qt::NoButton, {}, {});
        QApplication::sendEvent(target, &event);
    }

    static void release(const MenuList& list, int row) {
        QWidget* const target = viewOf(list).viewport();
        QTest::mouseRelease(target, Qt::LeftButton, {}, target->mapFromGlobal(frameOf(list, row).center()));
        QCoreApplication::processEvents(); // it acts once the window is closed
    }

    QString current(const MenuList& list) {
        return list.itemOf(list.currentRow()) != nullptr ? list.itemOf(list.currentRow())->title()
                                                         : QString();
    }

    QWidget m_window;
    QPointer<PopUpButton> m_button = new PopUpButton(false, &m_window);
    QStringList m_chosen;
};

} // namespace

TEST_F(MenuListTest, OpensWithTheSelectedItemOverTheButton) {
    const QRect button(m_button->mapToGlobal(QPoint()), m_button->size());
    const QRect screen = m_button->screen()->availableGeometry();
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft})
        for (const int selected : {0, 3, 600, count - 1}) {
            SCOPED_TRACE(selected);
            m_button->setLayoutDirection(direction);
            const MenuList& list = open(selected);
            EXPECT_EQ(list.currentRow(), selected);
            const QRect row = frameOf(list, selected);
            EXPECT_LE(std::abs(row.center().y() - button.center().y()), 1);
            EXPECT_LE(row.left(), button.left());
            EXPECT_GE(row.right(), button.right());
            EXPECT_TRUE(screen.contains(list.geometry()));
            EXPECT_GE(list.height(), 130) << "some neighbours are in sight";
            EXPECT_TRUE(m_button->context().state.contains(StyledControlState::highlighted));
            QTest::keyClick(const_cast<MenuList*>(&list), Qt::Key_Escape);
            EXPECT_FALSE(m_button->isMenuOpen());
            EXPECT_FALSE(m_button->context().state.contains(StyledControlState::highlighted));
        }
    EXPECT_TRUE(m_chosen.isEmpty());
}

TEST_F(MenuListTest, LooksLikeAMenuWithLinesBetweenGroups) {
    item(3).setState(MenuItem::State::on);
    m_button->menu()->insertAction(&item(4), MenuItem::separator().release());
    item(5).setEnabled(false); // which is what stood fourth
    m_button->selectItem(2);
    MenuList& list = open(2);
    const int width = viewOf(list).viewport()->width();
    Menu menu;
    for (const int index : {2, 3}) {
        MenuItem& likeIt = menu.addItem(item(index).title());
        likeIt.setState(index == 2 ? MenuItem::State::on : MenuItem::State::off);
    }
    menu.setMinimumWidth(width + 10);
    menu.popup({});
    menu.setActiveAction(menu.items()[0]);
    const QImage inMenu = picture(menu).copy(5, 5, width, 26);
    const QImage inList = picture(*viewOf(list).viewport()).copy(0, 2 * 26, width, 26);
    menu.close();
    EXPECT_LE(difference(inList.copy(5, 0, 60, 26), inMenu.copy(5, 0, 60, 26)), 2);
    const QImage rows = picture(*viewOf(list).viewport());
    const int x = width - 30; // beside the titles
    EXPECT_GT(difference(rows.pixel(x, 4 * 26), rows.pixel(x, 4 * 26 + 3)), 5);
    EXPECT_EQ(rows.pixel(x, 5 * 26), rows.pixel(x, 5 * 26 + 3));
    EXPECT_EQ(list.itemOf(4), &item(5)) << "the separator has no row of its own";
}

TEST_F(MenuListTest, KeysGoToRowsAndChoose) {
    item(12).setEnabled(false);
    MenuList& list = open(10);
    const auto keyed = [&](Qt::Key key) {
        QTest::keyClick(&list, key);
        return current(list);
    };
    EXPECT_EQ(keyed(Qt::Key_Down), QStringLiteral("Patch 11"));
    EXPECT_EQ(keyed(Qt::Key_Down), QStringLiteral("Patch 13")) << "past what is disabled";
    EXPECT_EQ(keyed(Qt::Key_Up), QStringLiteral("Patch 11"));
    EXPECT_EQ(keyed(Qt::Key_End), QStringLiteral("Patch 1199"));
    EXPECT_EQ(keyed(Qt::Key_Down), QStringLiteral("Patch 1199"));
    EXPECT_TRUE(
        viewOf(list).viewport()->rect().contains(viewOf(list).visualRect(viewOf(list).currentIndex())));
    keyed(Qt::Key_PageUp);
    EXPECT_LT(list.currentRow(), 1190);
    EXPECT_EQ(keyed(Qt::Key_Home), QStringLiteral("Patch 0"));
    QTest::keyClicks(&list, QStringLiteral("patch 77"));
    EXPECT_EQ(current(list), QStringLiteral("Patch 77"));
    EXPECT_TRUE(m_chosen.isEmpty());
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_FALSE(m_button->isMenuOpen());
    QCoreApplication::processEvents();
    EXPECT_EQ(m_chosen, QStringList(QStringLiteral("Patch 77")));
    EXPECT_EQ(m_button->title(), QStringLiteral("Patch 77"));
}

TEST_F(MenuListTest, APressMayGoOnIntoTheList) {
    MenuList& list = open(10);
    release(list, 10);
    EXPECT_TRUE(m_button->isMenuOpen()) << "the release of the press that opened it";
    move(list, 12);
    EXPECT_EQ(list.currentRow(), 12);
    release(list, 12);
    EXPECT_EQ(m_chosen, QStringList(QStringLiteral("Patch 12")));
    open(12);
    QTest::mousePress(&list, Qt::LeftButton, {}, {-20, -20});
    EXPECT_FALSE(m_button->isMenuOpen());
    item(13).setEnabled(false);
    open(12);
    move(list, 13);
    release(list, 13);
    EXPECT_TRUE(m_button->isMenuOpen()) << "a disabled item is no choice";
    m_button->hide();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(m_chosen.size(), 1);
}

TEST_F(MenuListTest, FollowsTheMenuWhileItIsOpen) {
    MenuList& list = open(10);
    for (int i = 0; i < 5; ++i)
        delete &item(0);
    picture(list);
    EXPECT_EQ(current(list), QStringLiteral("Patch 10"));
    item(6).setTitle(QStringLiteral("Renamed"));
    m_button->addItem(QStringLiteral("Last"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return list.rowOf(m_button->itemArray().last()) > 0; }));
    EXPECT_EQ(current(list), QStringLiteral("Patch 10"));
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(current(list), QStringLiteral("Renamed"));
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_EQ(current(list), QStringLiteral("Last"));
    QTest::keyClick(&list, Qt::Key_Return);
    delete m_button->itemArray().last();
    QCoreApplication::processEvents();
    EXPECT_TRUE(m_chosen.isEmpty()) << "what was chosen has gone";
    open(0);
    m_button->menu()->removeAllItems();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_button->isMenuOpen(); })) << "nothing is left to choose";
}

TEST_F(MenuListTest, TheButtonMayGoWhileItIsOpenAndByItsChoice) {
    QPointer<MenuList> list = &open(10);
    QObject::connect(m_button, &PopUpButton::itemChosen, m_button, [this] { delete m_button; });
    move(*list, 11);
    release(*list, 11);
    EXPECT_EQ(m_button, nullptr);
    EXPECT_EQ(list, nullptr);
    EXPECT_EQ(m_chosen.size(), 1);
}
