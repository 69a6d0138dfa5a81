#include "Platform/Controls/PopUpButton.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

using platform::Menu;
using platform::MenuItem;
using platform::PopUpButton;
using platform::Selector;

namespace {

constexpr Selector chosen{"select"};
constexpr Selector next{"selectNextItem"};
constexpr Selector previous{"selectPreviousItem"};

class Owner : public QObject {
    Q_OBJECT

public:
    QStringList selected;

public Q_SLOTS:

    void select(QObject* sender) { selected << qobject_cast<PopUpButton*>(sender)->titleOfSelectedItem(); }

    void own(QObject* sender) { selected << u"own " + qobject_cast<MenuItem*>(sender)->title(); }
};

class PopUpButtonTest : public testing::Test {
protected:
    PopUpButtonTest() {
        m_window.resize(400, 300);
        for (PopUpButton* button : {&m_button, &m_pullDown}) {
            button->setAction(chosen, &m_owner);
            button->setFixedSize(120, 24);
        }
        m_button.move(100, 100);
        m_pullDown.move(100, 200);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    /// Appends an item for each letter: "-" is a separator, a small letter is disabled.
    void fill(const QString& letters) {
        for (const QChar letter : letters) {
            if (letter == u'-') {
                m_button.menu()->addItem(MenuItem::separator());
                continue;
            }
            m_button.addItem(letter.toUpper()).setEnabled(letter.isUpper());
        }
    }

    QString cycled(Selector selector) {
        EXPECT_TRUE(platform::sendAction(selector, &m_button, nullptr));
        return m_button.titleOfSelectedItem();
    }

    QString keyed(Qt::Key key) {
        QTest::keyClick(&m_button, key);
        return m_button.titleOfSelectedItem();
    }

    void chooseInMenu(PopUpButton& button, MenuItem& item) {
        const QPoint center = button.menu()->actionGeometry(&item).center();
        QTest::mouseMove(button.menu(), center - QPoint(3, 3));
        QTest::mouseMove(button.menu(), center);
        QTest::mouseClick(button.menu(), Qt::LeftButton, {}, center);
        QCoreApplication::processEvents(); // an open menu's item acts once it is closed
    }

    Owner m_owner;
    QWidget m_window;
    PopUpButton m_button{false, &m_window};
    PopUpButton m_pullDown{true, &m_window};
};

} // namespace

TEST_F(PopUpButtonTest, SelectsTheFirstItemAndWhatItIsTold) {
    EXPECT_EQ(m_button.indexOfSelectedItem(), -1);
    EXPECT_EQ(m_button.titleOfSelectedItem(), QString());
    fill(QStringLiteral("-ABC"));
    EXPECT_EQ(m_button.indexOfSelectedItem(), 1);
    m_button.selectItem(3);
    EXPECT_EQ(m_button.titleOfSelectedItem(), QStringLiteral("C"));
    EXPECT_EQ(m_button.itemArray()[1]->state(), MenuItem::State::off);
    EXPECT_EQ(m_button.itemArray()[3]->state(), MenuItem::State::on);
    delete m_button.selectedItem();
    EXPECT_EQ(m_button.indexOfSelectedItem(), -1);
    m_button.selectItem(1);
    m_button.menu()->removeAction(m_button.selectedItem());
    EXPECT_EQ(m_button.titleOfSelectedItem(), QString()) << "it lives on, but not in this menu";
    EXPECT_TRUE(m_owner.selected.isEmpty()) << "only the user sends";
    m_button.setMenu(nullptr);
    EXPECT_TRUE(m_button.itemArray().isEmpty());
    QTest::mouseClick(&m_button, Qt::LeftButton);
    m_button.addItem(QStringLiteral("D"));
    EXPECT_EQ(m_button.titleOfSelectedItem(), QStringLiteral("D"));
}

TEST_F(PopUpButtonTest, PressOpensTheMenuWithTheSelectedItemOverTheButton) {
    fill(QStringLiteral("ABC"));
    m_button.selectItem(2);
    Menu& menu = *m_button.menu();
    const QRect button(m_button.mapToGlobal(QPoint()), m_button.size());
    for (const auto direction : {Qt::RightToLeft, Qt::LeftToRight}) {
        m_button.setLayoutDirection(direction);
        QTest::mousePress(&m_button, Qt::LeftButton);
        ASSERT_TRUE(menu.isVisible());
        EXPECT_TRUE(m_button.context().state.contains(platform::StyledControlState::highlighted));
        EXPECT_EQ(menu.activeAction(), m_button.selectedItem());
        const QRect row = menu.actionGeometry(m_button.selectedItem()).translated(menu.pos());
        EXPECT_LE(std::abs(row.center().y() - button.center().y()), 1);
        EXPECT_TRUE(menu.geometry().contains(button)) << direction;
        QTest::keyClick(&menu, Qt::Key_Escape);
        EXPECT_FALSE(m_button.context().state.contains(platform::StyledControlState::highlighted));
    }
}

TEST_F(PopUpButtonTest, AnItemWithAnActionSendsItInsteadOnceItIsSelected) {
    fill(QStringLiteral("AB"));
    MenuItem& item = *m_button.itemArray()[1];
    item.action = Selector{"own"};
    item.target = &m_owner;
    QString selectedThen;
    QObject::connect(&m_button, &PopUpButton::itemChosen, [&](auto* it) { selectedThen = it->title(); });
    item.trigger();
    EXPECT_EQ(m_owner.selected, QStringList{QStringLiteral("own B")});
    EXPECT_EQ(selectedThen, QStringLiteral("B"));
    EXPECT_EQ(item.state(), MenuItem::State::on);
    EXPECT_TRUE(item.isChecked());
}

TEST_F(PopUpButtonTest, ItemsOfSubmenusCountWhereTheirSubmenuIs) {
    fill(QStringLiteral("AB"));
    MenuItem& parent = *m_button.itemArray()[1];
    parent.setSubmenu(std::make_unique<Menu>());
    parent.submenu()->addItem(QStringLiteral("inner")).trigger();
    EXPECT_EQ(m_button.title(), QStringLiteral("inner"));
    EXPECT_EQ(m_button.indexOfSelectedItem(), 1);
    EXPECT_EQ(m_owner.selected, QStringList{QStringLiteral("inner")});
    EXPECT_EQ(cycled(previous), QStringLiteral("A"));
    m_button.addItem(QStringLiteral("C"));
    EXPECT_EQ(keyed(Qt::Key_Down), QStringLiteral("C")) << "keys pass over what only opens a submenu";
    EXPECT_EQ(keyed(Qt::Key_Up), QStringLiteral("A"));
}

TEST_F(PopUpButtonTest, KeysStepWithoutWrappingAndOpen) {
    fill(QStringLiteral("Ab-CD"));
    EXPECT_EQ(keyed(Qt::Key_Up), QStringLiteral("A"));
    EXPECT_TRUE(m_owner.selected.isEmpty());
    EXPECT_EQ(keyed(Qt::Key_Down), QStringLiteral("C"));
    EXPECT_EQ(keyed(Qt::Key_Down), QStringLiteral("D"));
    EXPECT_EQ(keyed(Qt::Key_Down), QStringLiteral("D"));
    EXPECT_EQ(keyed(Qt::Key_Home), QStringLiteral("A"));
    EXPECT_EQ(keyed(Qt::Key_End), QStringLiteral("D"));
    EXPECT_EQ(keyed(Qt::Key_Up), QStringLiteral("C"));
    EXPECT_EQ(keyed(Qt::Key_D), QStringLiteral("D"));
    EXPECT_EQ(m_owner.selected.join(QString()), QStringLiteral("CDADCD"));
    m_button.selectItem(nullptr);
    EXPECT_EQ(keyed(Qt::Key_Up), QStringLiteral("D")) << "from nothing";
    QTest::qWait(QApplication::keyboardInputInterval() + 20); // a space would go on with what was typed
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_F4}) {
        QTest::keyClick(&m_button, key);
        EXPECT_TRUE(m_button.menu()->isVisible()) << key;
        QTest::keyClick(m_button.menu(), Qt::Key_Escape);
        EXPECT_FALSE(m_button.menu()->isVisible());
        EXPECT_FALSE(m_button.context().state.contains(platform::StyledControlState::highlighted));
    }
    QTest::keyClick(&m_button, Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(m_button.menu()->isVisible());
}

TEST_F(PopUpButtonTest, PullDownShowsItsTitleAndAMenuOfTheRest) {
    for (const auto* title : {"Actions", "Copy", "Remove"})
        m_pullDown.addItem(QString::fromLatin1(title));
    EXPECT_EQ(m_pullDown.title(), QStringLiteral("Actions"));
    EXPECT_EQ(m_pullDown.selectedItem(), nullptr);
    QTest::keyClick(&m_pullDown, Qt::Key_Down);
    const Menu& menu = *m_pullDown.menu();
    ASSERT_TRUE(menu.isVisible());
    EXPECT_GE(menu.y(), m_pullDown.mapToGlobal(QPoint(0, m_pullDown.height())).y());
    EXPECT_TRUE(menu.actionGeometry(m_pullDown.itemArray()[0]).isEmpty());
    chooseInMenu(m_pullDown, *m_pullDown.itemArray()[2]);
    EXPECT_EQ(m_owner.selected, QStringList{QStringLiteral("Remove")});
    EXPECT_EQ(m_pullDown.title(), QStringLiteral("Actions"));
    EXPECT_FALSE(m_pullDown.itemArray()[2]->isCheckable());
}

TEST_F(PopUpButtonTest, CyclingSkipsWhatCannotBeChosenAndWrapsToWhatIsThere) {
    fill(QStringLiteral("Ab-C"));
    EXPECT_EQ(cycled(next), QStringLiteral("C"));
    EXPECT_EQ(cycled(next), QStringLiteral("A"));
    EXPECT_EQ(cycled(previous), QStringLiteral("C"));
    EXPECT_EQ(cycled(previous), QStringLiteral("A"));
    EXPECT_EQ(m_owner.selected.join(QString()), QStringLiteral("CACA"));
    fill(QStringLiteral("-"));
    cycled(previous);
    EXPECT_EQ(m_button.indexOfSelectedItem(), 4) << "a last separator is wrapped to";
    m_button.selectItem(-1);
    EXPECT_EQ(cycled(next), QStringLiteral("A"));
    m_button.setMenu(std::make_unique<Menu>());
    EXPECT_EQ(cycled(next), QString()) << "there is nothing to choose";
    fill(QStringLiteral("Ab"));
    EXPECT_EQ(cycled(next), QStringLiteral("A"));
    EXPECT_EQ(cycled(previous), QStringLiteral("B")) << "though it is disabled";
}

TEST_F(PopUpButtonTest, ClosesItsMenuWhenItCanNoLongerBeUsed) {
    fill(QStringLiteral("AB"));
    platform::PushButton other(QStringLiteral("Other"), &m_window);
    other.setGeometry(300, 250, 60, 24);
    other.show();
    QSignalSpy clicks(&other, &platform::PushButton::clicked);
    const auto end = [this](bool hides) { hides ? m_button.hide() : m_button.setEnabled(false); };
    for (const bool hides : {true, false}) {
        SCOPED_TRACE(hides);
        clicks.clear();
        QTest::mousePress(&m_button, Qt::LeftButton);
        ASSERT_TRUE(m_button.menu()->isVisible());
        end(hides);
        EXPECT_FALSE(m_button.menu()->isVisible());
        EXPECT_FALSE(m_button.context().state.contains(platform::StyledControlState::highlighted));
        // As the desktop delivers it: an open menu would get it first.
        QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {}, QPoint(330, 262));
        EXPECT_EQ(clicks.count(), 1);
        m_button.show();
    }
    m_button.openMenu();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "it is disabled";
    m_button.setEnabled(true);

    Menu ofDestroyed;
    ofDestroyed.addItem(QStringLiteral("A"));
    {
        const QWidget view(&m_window);
        popUp(ofDestroyed, nullptr, {}, const_cast<QWidget&>(view));
        EXPECT_TRUE(ofDestroyed.isVisible());
    }
    EXPECT_FALSE(ofDestroyed.isVisible());
}

TEST_F(PopUpButtonTest, AKeyThatIsHeldOpensTheMenuAndChoosesNothing) {
    fill(QStringLiteral("AB"));
    const auto repeat = [](QWidget& widget, Qt::Key key) {
        QKeyEvent repeated(QEvent::KeyPress, key, {}, {}, true);
        QApplication::sendEvent(&widget, &repeated);
    };
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        QTest::keyPress(&m_button, key);
        ASSERT_TRUE(m_button.menu()->isVisible());
        repeat(*m_button.menu(), key);
        QCoreApplication::processEvents();
        EXPECT_TRUE(m_button.menu()->isVisible()) << key;
        QTest::keyClick(m_button.menu(), Qt::Key_Escape);
        repeat(m_button, key);
        EXPECT_FALSE(m_button.menu()->isVisible()) << key;
        m_button.menu()->close();
    }
    EXPECT_TRUE(m_owner.selected.isEmpty());
}

TEST_F(PopUpButtonTest, ItsTitleKeepsClearOfTheArrowsFromRightToLeft) {
    const QRectF bounds(0, 0, 120, 24);
    const QRectF leftToRight = m_button.cell().titleRect(bounds, m_button.context());
    EXPECT_LT(leftToRight.left(), 120 - leftToRight.right());
    m_button.setLayoutDirection(Qt::RightToLeft);
    const QRectF rightToLeft = m_button.cell().titleRect(bounds, m_button.context());
    EXPECT_EQ(rightToLeft.left(), 120 - leftToRight.right());
    EXPECT_EQ(rightToLeft.right(), 120 - leftToRight.left());
}

TEST_F(PopUpButtonTest, MayBeDestroyedByItsChoice) {
    auto* const button = new PopUpButton;
    button->setAction(chosen, &m_owner);
    button->addItem(QStringLiteral("A"));
    QObject::connect(button, &PopUpButton::itemChosen, button, [button] { delete button; });
    button->selectNextItem();
    EXPECT_TRUE(m_owner.selected.isEmpty());
}

TEST_F(PopUpButtonTest, MayBeRefilledAndDestroyedByAChoiceInItsMenu) {
    fill(QStringLiteral("AB"));
    QObject::connect(&m_button, &PopUpButton::itemChosen, &m_button, [this] {
        m_button.setMenu(std::make_unique<Menu>());
        m_button.addItem(QStringLiteral("New"));
    });
    QTest::mousePress(&m_button, Qt::LeftButton);
    chooseInMenu(m_button, *m_button.itemArray()[1]);
    EXPECT_EQ(m_button.title(), QStringLiteral("New"));
    EXPECT_FALSE(m_button.context().state.contains(platform::StyledControlState::highlighted));

    const QPointer<PopUpButton> doomed(new PopUpButton(false, &m_window));
    doomed->addItem(QStringLiteral("A"));
    doomed->setGeometry(10, 10, 120, 24);
    doomed->show();
    QObject::connect(doomed, &PopUpButton::itemChosen, doomed, [doomed] { delete doomed.data(); });
    QTest::mousePress(doomed, Qt::LeftButton);
    chooseInMenu(*doomed, *doomed->itemArray()[0]);
    EXPECT_EQ(doomed, nullptr);
}

TEST_F(PopUpButtonTest, TheMnemonicOfItsLabelOpensTheMenu) {
    fill(QStringLiteral("AB"));
    QLabel label(QStringLiteral("&Choice"), &m_window);
    label.setBuddy(&m_button);
    label.show();
    QTest::keyClick(&m_window, Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_button.menu()->isVisible(); }));
    EXPECT_TRUE(m_owner.selected.isEmpty()) << "nothing has been chosen yet";
}

TEST_F(PopUpButtonTest, AssistiveTechnologySeesAComboBox) {
    fill(QStringLiteral("AB"));
    auto* const comboBox = QAccessible::queryAccessibleInterface(&m_button);
    EXPECT_EQ(comboBox->role(), QAccessible::ComboBox);
    EXPECT_EQ(comboBox->text(QAccessible::Value), QStringLiteral("A"));
    EXPECT_TRUE(comboBox->state().collapsed);
    comboBox->actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(m_button.menu()->isVisible());
    EXPECT_TRUE(comboBox->state().expanded);
    m_pullDown.addItem(QStringLiteral("Actions"));
    const auto* const menu = QAccessible::queryAccessibleInterface(&m_pullDown);
    EXPECT_EQ(menu->role(), QAccessible::ButtonMenu);
    EXPECT_EQ(menu->text(QAccessible::Value), QStringLiteral("Actions"));
}

#include "PopUpButtonTest.moc"
