#include "Platform/Controls/Menu.h"
#include "Platform/Controls/KeyEquivalent.h"

#include <QSignalSpy>
#include <QStyleHints>
#include <QTest>

#include <gtest/gtest.h>

using platform::keyEquivalent;
using platform::Menu;
using platform::MenuItem;
using platform::Selector;

namespace {

constexpr Selector play{"play"};
constexpr Selector nobodyKnows{"nobodyKnows"};

class Player : public QWidget {
    Q_OBJECT

public:
    QList<QObject*> senders;
    bool isReady = true;

    Q_INVOKABLE bool validateMenuItem(QObject*) const { return isReady; }

public Q_SLOTS:

    void play(QObject* sender) { senders << sender; }
};

class Filler : public platform::MenuDelegate {
public:
    void menuNeedsUpdate(Menu& menu) override {
        menu.removeAllItems();
        menu.addItem(QStringLiteral("Take %1").arg(++times));
    }

    int times = 0;
};

class MenuTest : public testing::Test {
protected:
    MenuTest() {
        m_window.resize(400, 300);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    void open() { popUp(m_menu, nullptr, {20, 20}, m_window); }

    void click(const MenuItem& item) {
        const QPoint center = m_menu.actionGeometry(const_cast<MenuItem*>(&item)).center();
        QTest::mouseMove(&m_menu, center - QPoint(2, 2));
        QTest::mouseMove(&m_menu, center);
        QTest::mouseClick(&m_menu, Qt::LeftButton, {}, center);
        QCoreApplication::processEvents(); // an open menu's item acts once it is closed
    }

    QString typed(const QString& text) {
        QTest::keyClicks(&m_menu, text);
        const auto* const item = qobject_cast<MenuItem*>(m_menu.activeAction());
        return item != nullptr ? item->title() : QString();
    }

    Player m_window;
    Menu m_menu;
};

} // namespace

TEST_F(MenuTest, AClickSendsTheActionAndLeavesTheMark) {
    MenuItem& targeted = m_menu.addItem(QStringLiteral("Play"), play);
    Player other;
    targeted.target = &other;
    targeted.setState(MenuItem::State::on);
    MenuItem& untargeted = m_menu.addItem(QStringLiteral("Play"), play);
    open();
    click(targeted);
    EXPECT_FALSE(m_menu.isVisible());
    EXPECT_EQ(other.senders, QList<QObject*>{&targeted});
    EXPECT_TRUE(targeted.isChecked());
    open();
    click(untargeted);
    EXPECT_EQ(m_window.senders, QList<QObject*>{&untargeted});
}

TEST_F(MenuTest, EnablesWhatSomebodyAnswersToWhileItIsShown) {
    const MenuItem& known = m_menu.addItem(QStringLiteral("Play"), play);
    MenuItem& unknown = m_menu.addItem(QStringLiteral("Unknown"), nobodyKnows);
    MenuItem& silent = m_menu.addItem(QStringLiteral("Nothing"));
    silent.setEnabled(false);
    MenuItem& parent = m_menu.addItem(QStringLiteral("More"), nobodyKnows);
    parent.setSubmenu(std::make_unique<Menu>());
    open();
    EXPECT_TRUE(known.isEnabled());
    EXPECT_FALSE(unknown.isEnabled());
    EXPECT_FALSE(silent.isEnabled());
    EXPECT_TRUE(parent.isEnabled());
    m_menu.close();
    EXPECT_TRUE(unknown.isEnabled()) << "so that its keys work as soon as somebody answers";
    EXPECT_FALSE(silent.isEnabled());

    m_window.isReady = false;
    open();
    EXPECT_FALSE(known.isEnabled()) << "who answers may refuse";
    m_menu.close();
    m_menu.setAutoenablesItems(false);
    open();
    EXPECT_TRUE(unknown.isEnabled());
}

TEST_F(MenuTest, DelegateFillsItEachTimeUntilItIsGone) {
    auto filler = std::make_unique<Filler>();
    m_menu.setDelegate(filler.get());
    for (const auto& title : {QStringLiteral("Take 1"), QStringLiteral("Take 2")}) {
        open();
        ASSERT_EQ(m_menu.items().size(), 1);
        EXPECT_EQ(m_menu.items().front()->title(), title);
        m_menu.close();
    }
    filler.reset();
    open();
    EXPECT_EQ(m_menu.items().size(), 1);
}

TEST_F(MenuTest, FromRightToLeftItEndsWhereWhatItIsFilledWithEnds) {
    class : public platform::MenuDelegate {
        void menuNeedsUpdate(Menu& menu) override {
            menu.removeAllItems();
            menu.addItem(QStringLiteral("A title that is long"));
        }
    } filler;

    m_menu.setDelegate(&filler);
    m_window.setLayoutDirection(Qt::RightToLeft);
    const QPoint point(300, 20);
    popUp(m_menu, nullptr, point, m_window);
    EXPECT_EQ(m_menu.geometry().right() + 1, m_window.mapToGlobal(point).x());
}

TEST_F(MenuTest, TheItemToShowMayBeReplacedByTheDelegate) {
    Filler filler;
    MenuItem& item = m_menu.addItem(QStringLiteral("Old"));
    m_menu.setDelegate(&filler);
    popUp(m_menu, &item, {20, 20}, m_window);
    EXPECT_EQ(m_menu.activeAction(), nullptr);
}

TEST_F(MenuTest, NobodyHearsOfAnItemThatHasGone) {
    MenuItem& folder = m_menu.addItem(QStringLiteral("Folder"));
    folder.setSubmenu(std::make_unique<Menu>());
    MenuItem& item = folder.submenu()->addItem(QStringLiteral("Item"));
    QObject::connect(folder.submenu(), &Menu::willSendAction, [](MenuItem* chosen) { delete chosen; });
    QSignalSpy outer(&m_menu, &Menu::willSendAction);
    item.trigger();
    EXPECT_EQ(outer.count(), 0);
}

TEST_F(MenuTest, SubmenusOpenByKeyAndTellTheirSupermenu) {
    QStringList events;
    QObject::connect(&m_menu, &Menu::willSendAction, [&](auto* item) { events << u"will " + item->title(); });
    QObject::connect(&m_menu, &Menu::didSendAction, [&](auto* item) { events << u"did " + item->title(); });
    MenuItem& parent = m_menu.addItem(QStringLiteral("More"));
    parent.setSubmenu(std::make_unique<Menu>());
    Menu& submenu = *parent.submenu();
    submenu.addItem(QStringLiteral("Inner"), play);
    EXPECT_EQ(submenu.supermenu(), &m_menu);
    EXPECT_EQ(flattenedItems(m_menu), (QList{&parent, submenu.items().front()}));
    open();
    QTest::keyClick(&m_menu, Qt::Key_Down);
    QTest::keyClick(&m_menu, Qt::Key_Right);
    ASSERT_TRUE(QTest::qWaitFor([&] { return submenu.isVisible(); }));
    QTest::keyClick(&submenu, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(events, (QStringList{QStringLiteral("will Inner"), QStringLiteral("did Inner")}));
    EXPECT_EQ(m_window.senders.size(), 1);
    EXPECT_FALSE(m_menu.isVisible());
}

TEST_F(MenuTest, AChoiceMayDestroyAllThatIsOpen) {
    const QPointer<Menu> menu(new Menu);
    MenuItem& folder = menu->addItem(QStringLiteral("Folder"));
    folder.setSubmenu(std::make_unique<Menu>());
    Menu& submenu = *folder.submenu();
    submenu.addItem(QStringLiteral("Close"), play);
    QObject::connect(menu, &Menu::willSendAction, [menu] { delete menu.data(); });
    menu->popup(m_window.mapToGlobal(QPoint(10, 10)));
    menu->setActiveAction(&folder);
    QTest::keyClick(menu, Qt::Key_Right);
    ASSERT_TRUE(QTest::qWaitFor([&] { return submenu.isVisible(); }));
    QTest::keyClick(&submenu, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(menu, nullptr);
    EXPECT_TRUE(m_window.senders.isEmpty());
}

TEST_F(MenuTest, AnItemMayRemoveItself) {
    MenuItem& item = m_menu.addItem(QStringLiteral("Play"), play);
    QObject::connect(&m_menu, &Menu::willSendAction, &m_menu, &Menu::removeAllItems);
    item.trigger();
    EXPECT_TRUE(m_menu.items().isEmpty());
    EXPECT_TRUE(m_window.senders.isEmpty());
}

TEST_F(MenuTest, TypingFindsTheBeginningOfATitle) {
    for (const auto* title : {"Bass", "Brass section", "Grand piano", "Grand organ", "Gong"})
        m_menu.addItem(QString::fromLatin1(title));
    m_menu.items()[4]->setEnabled(false);
    const int interval = QGuiApplication::styleHints()->keyboardInputInterval();
    const auto pause = [&] { QTest::qWait(interval + 20); };
    open();
    EXPECT_EQ(typed(QStringLiteral("b")), QStringLiteral("Bass"));
    EXPECT_EQ(typed(QStringLiteral("b")), QStringLiteral("Brass section")) << "the same letter goes on";
    pause();
    EXPECT_EQ(typed(QStringLiteral("b")), QStringLiteral("Bass")) << "around the end";
    pause();
    EXPECT_EQ(typed(QStringLiteral("GRAND O")), QStringLiteral("Grand organ"));
    pause();
    EXPECT_EQ(typed(QStringLiteral("go")), QStringLiteral("Grand piano")) << "not what is disabled";
    EXPECT_TRUE(m_menu.isVisible()) << "the space was typed, too";
    pause();
    QTest::keyClick(&m_menu, Qt::Key_Space);
    EXPECT_FALSE(m_menu.isVisible());
}

TEST_F(MenuTest, APressOnItsViewOnlyClosesIt) {
    m_menu.addItem(QStringLiteral("A"));
    const auto pressAt = [this](QPoint point) {
        open();
        QTest::mousePress(&m_menu, Qt::LeftButton, {}, m_menu.mapFromGlobal(m_window.mapToGlobal(point)));
        EXPECT_FALSE(m_menu.isVisible());
        return !m_menu.testAttribute(Qt::WA_NoMouseReplay);
    };
    EXPECT_TRUE(pressAt({-30, 10})) << "a press elsewhere is passed on";
    EXPECT_FALSE(pressAt({5, 5}));
}

TEST(MenuItem, ShowsItsTitleAsItIs) {
    const MenuItem item(QStringLiteral("Rhythm &\tBlues && more"));
    EXPECT_EQ(item.title(), QStringLiteral("Rhythm &\tBlues && more"));
    EXPECT_EQ(item.text(), QStringLiteral("Rhythm && Blues &&&& more"));
}

TEST(KeyEquivalent, NamesTheKeys) {
    constexpr auto control = Qt::ControlModifier;
    const std::vector<std::tuple<QString, Qt::KeyboardModifiers, const char*>> keys{
        {QStringLiteral("q"), control, "Ctrl+Q"},
        {QStringLiteral("Q"), control, "Ctrl+Shift+Q"},
        {QStringLiteral("z"), control | Qt::ShiftModifier, "Ctrl+Shift+Z"},
        {QStringLiteral(","), Qt::AltModifier, "Alt+,"},
        {QStringLiteral(" "), {}, "Space"},
        {QStringLiteral("\b"), control, "Ctrl+Backspace"},
        {QStringLiteral("Left"), control, "Ctrl+Left"},
        {QStringLiteral("no such key"), control, ""}};
    for (const auto& [key, modifiers, name] : keys)
        EXPECT_EQ(keyEquivalent(key, modifiers).toString(QKeySequence::PortableText), QLatin1String(name));
}

#include "MenuTest.moc"
