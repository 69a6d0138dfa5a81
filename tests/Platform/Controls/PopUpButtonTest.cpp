#include "Platform/Controls/PopUpButton.h"
#include "Platform/Controls/ButtonStyle.h"
#include "Platform/Controls/FocusRing.h"
#include "tests/support/Pixels.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QPainter>
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

using PopUpButtonDeathTest = PopUpButtonTest;

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
    MenuItem stranger(QStringLiteral("stranger"));
    m_button.selectItem(&stranger);
    EXPECT_EQ(m_button.selectedItem(), nullptr);
    m_button.selectItem(2);
    delete m_button.selectedItem();
    EXPECT_EQ(m_button.indexOfSelectedItem(), -1);
    m_button.selectItem(1);
    m_button.menu()->removeAction(m_button.selectedItem());
    EXPECT_EQ(m_button.titleOfSelectedItem(), QString()) << "it lives on, but not in this menu";
    m_button.selectItem(17);
    EXPECT_EQ(m_button.indexOfSelectedItem(), -1);
    EXPECT_TRUE(m_owner.selected.isEmpty()) << "only the user sends";
    m_button.setMenu(nullptr);
    EXPECT_TRUE(m_button.itemArray().isEmpty());
    QTest::mouseClick(&m_button, Qt::LeftButton);
    m_button.addItem(QStringLiteral("D"));
    EXPECT_EQ(m_button.titleOfSelectedItem(), QStringLiteral("D"));
}

TEST_F(PopUpButtonTest, AFullMenuHasItsFirstItemSelected) {
    for (PopUpButton* button : {&m_button, &m_pullDown}) {
        auto menu = std::make_unique<Menu>();
        menu->addItem(MenuItem::sectionHeader(QStringLiteral("Header")));
        menu->addItem(QStringLiteral("R & B"));
        menu->addItem(QStringLiteral("Pop"));
        button->setMenu(std::move(menu));
    }
    EXPECT_EQ(m_button.title(), QStringLiteral("R & B"));
    EXPECT_EQ(m_button.plainTitle(), QStringLiteral("R & B"));
    EXPECT_EQ(m_pullDown.selectedItem(), nullptr);
    QTest::keyClick(&m_pullDown, Qt::Key_End);
    EXPECT_EQ(m_pullDown.selectedItem(), nullptr);
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

TEST_F(PopUpButtonTest, ChoosingInTheMenuSelectsAndSends) {
    fill(QStringLiteral("ABC"));
    m_button.selectItem(2);
    QTest::mousePress(&m_button, Qt::LeftButton);
    chooseInMenu(m_button, *m_button.itemArray()[0]);
    EXPECT_FALSE(m_button.menu()->isVisible());
    EXPECT_EQ(m_owner.selected, QStringList{QStringLiteral("A")});
    EXPECT_EQ(m_button.itemArray()[2]->state(), MenuItem::State::off);
    m_button.setEnabled(false);
    QTest::mouseClick(&m_button, Qt::LeftButton);
    EXPECT_FALSE(m_button.menu()->isVisible());
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

TEST_F(PopUpButtonTest, ThePullDownsTitleIsItsFirstItemWhicheverThatIs) {
    const auto shown = [this] {
        QStringList titles;
        for (const MenuItem* item : m_pullDown.itemArray())
            if (item->isVisible())
                titles << item->title();
        return titles.join(u' ');
    };
    for (const auto* title : {"Actions", "Copy", "Remove"})
        m_pullDown.addItem(QString::fromLatin1(title));
    m_pullDown.itemArray()[2]->setVisible(false);
    auto* const more = new MenuItem(QStringLiteral("More"));
    more->setParent(m_pullDown.menu());
    m_pullDown.menu()->insertAction(m_pullDown.itemArray().front(), more);
    EXPECT_EQ(m_pullDown.title(), QStringLiteral("More"));
    EXPECT_EQ(shown(), QStringLiteral("Actions Copy"));
    delete more;
    EXPECT_EQ(m_pullDown.title(), QStringLiteral("Actions"));
    EXPECT_EQ(shown(), QStringLiteral("Copy"));
    m_pullDown.menu()->removeAction(m_pullDown.itemArray().front());
    m_pullDown.menu()->removeAction(m_pullDown.itemArray().front());
    EXPECT_EQ(m_pullDown.title(), QStringLiteral("Remove"));
    MenuItem added(QStringLiteral("New"));
    m_pullDown.menu()->insertAction(m_pullDown.itemArray().front(), &added);
    EXPECT_EQ(shown(), QString()) << "what its owner has hidden stays so";
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
}

TEST_F(PopUpButtonTest, CyclingWrapsWithinOneItemAndNone) {
    QSignalSpy choices(&m_button, &PopUpButton::itemChosen);
    EXPECT_EQ(cycled(next), QString());
    EXPECT_EQ(choices.count(), 0) << "there is nothing to choose";
    EXPECT_EQ(m_button.indexOfSelectedItem(), -1);
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

TEST_F(PopUpButtonTest, KeysPassOverWhatOnlyOpensASubmenu) {
    fill(QStringLiteral("ABC"));
    MenuItem& folder = *m_button.itemArray()[1];
    folder.setSubmenu(std::make_unique<Menu>());
    folder.submenu()->addItem(QStringLiteral("inner"));
    EXPECT_EQ(keyed(Qt::Key_Down), QStringLiteral("C"));
    EXPECT_EQ(keyed(Qt::Key_B), QStringLiteral("C"));
    EXPECT_EQ(keyed(Qt::Key_Up), QStringLiteral("A"));
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

TEST_F(PopUpButtonTest, ItsArrowsAreDimmedWithIt) {
    const QPoint tip(m_button.width() - 10, 7); // of the upper arrow
    const QRgb enabled = picture(m_button).pixel(tip);
    m_button.setEnabled(false);
    const QRgb disabled = picture(m_button).pixel(tip);
    EXPECT_GT(difference(enabled, disabled), 30);
}

TEST_F(PopUpButtonTest, HasOneRingWhileItHasTheKeyboard) {
    m_button.clearFocus();
    QImage expected = picture(m_button);
    QPainter painter(&expected);
    platform::drawFocusRing(painter, m_button.focusRingMaskBounds(), {.radius = 4});
    painter.end();
    m_button.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(difference(picture(m_button), expected), 0);
}

TEST_F(PopUpButtonDeathTest, CyclingBackFromNothingIsFatal) {
    fill(QStringLiteral("A"));
    m_button.selectItem(-1);
    EXPECT_DEATH(m_button.selectPreviousItem(), "^selectPreviousItem: no item is selected\n$");
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

TEST_F(PopUpButtonTest, ShowsTheSelectedTitleAndIsAsWideAsTheWidest) {
    fill(QStringLiteral("AB"));
    const QImage first = picture(m_button);
    m_button.selectItem(1);
    EXPECT_GT(difference(first, picture(m_button)), 60);
    const int width = m_button.sizeHint().width();
    m_button.addItem(QStringLiteral("A far longer title"));
    EXPECT_GT(m_button.sizeHint().width(), width + 40);
}

#include "PopUpButtonTest.moc"
