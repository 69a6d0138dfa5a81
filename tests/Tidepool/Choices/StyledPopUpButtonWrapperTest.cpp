#include "Tidepool/Choices/StyledPopUpButtonWrapper.h"

#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/PopUpCyclingButton.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace tidepool;
using platform::MenuItem;

namespace {

class StyledPopUpButtonWrapperTest : public testing::Test {
protected:
    StyledPopUpButtonWrapperTest() {
        m_button->move(20, 60);
        m_button->resize(m_button->sizeHint());
        m_window.resize(300, 200);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    static std::vector<PopupItem> items() {
        return {{.object = 1, .title = QStringLiteral("One")},
                {.object = QStringLiteral("2"),
                 .title = QStringLiteral("Two & more"),
                 .image = Images::organiserIconStar},
                PopupItem::divider(),
                {.object = 3, .title = QStringLiteral("Three"), .isEnabled = false},
                {.title = QStringLiteral("None")},
                {.title = QStringLiteral("Others"),
                 .subMenu = std::vector<PopupItem>{{.object = 4, .title = QStringLiteral("Four")}}}};
    }

    QString keyed(Qt::Key key) {
        QTest::keyClick(m_button, key);
        return m_button->title();
    }

    std::function<void()> m_then = [] {};
    PopupObject m_value = 3;
    int m_sets = 0;
    QWidget m_window;
    QPointer<StyledPopUpButtonWrapper> m_button =
        new StyledPopUpButtonWrapper(items(),
                                     {[this] { return m_value; },
                                      [this](const PopupObject& object) {
                                          ++m_sets;
                                          m_value = object;
                                          m_then();
                                      }},
                                     QStringLiteral("Number"), 90, &m_window);
};

} // namespace

TEST_F(StyledPopUpButtonWrapperTest, BuildsTheMenuThatIsDescribed) {
    const auto built = m_button->itemArray();
    ASSERT_EQ(built.size(), 6);
    EXPECT_EQ(built[1]->title(), QStringLiteral("Two & more"));
    EXPECT_FALSE(built[1]->icon().isNull());
    EXPECT_EQ(std::any_cast<QString>(built[1]->representedObject), QStringLiteral("2"));
    EXPECT_FALSE(built[4]->representedObject.has_value());
    EXPECT_TRUE(built[2]->isSeparator());
    m_button->openMenu();
    EXPECT_FALSE(built[3]->isEnabled());
    EXPECT_TRUE(built[4]->isEnabled());
    m_button->menu()->close();
    EXPECT_EQ(built[5]->submenu()->items()[0]->title(), QStringLiteral("Four"));
    EXPECT_EQ(m_button->label(), QStringLiteral("Number"));
    EXPECT_EQ(m_button->intrinsicContentSize().width(), 90);
    EXPECT_EQ(m_sets, 0);
}

TEST_F(StyledPopUpButtonWrapperTest, ShowsWhatIsBoundWhateverItsType) {
    EXPECT_EQ(m_button->title(), QStringLiteral("Three"));
    const std::pair<PopupObject, QString> selections[]{{4, QStringLiteral("Four")},
                                                       {QStringLiteral("2"), QStringLiteral("Two & more")},
                                                       {2, QString()},
                                                       {4.0, QString()},
                                                       {{}, QStringLiteral("None")}};
    for (const auto& [value, title] : selections) {
        m_value = value;
        m_button->updateSelection();
        EXPECT_EQ(m_button->title(), title);
    }
    m_value = 1;
    m_button->hide();
    m_button->show();
    EXPECT_EQ(m_button->title(), QStringLiteral("One")) << "changed out of sight";
    m_button->setItems({{.object = 7, .title = QStringLiteral("Seven")},
                        {.object = 1, .title = QStringLiteral("Another one")}});
    EXPECT_EQ(m_button->title(), QStringLiteral("Another one"));
    EXPECT_EQ(m_sets, 0) << "only the user sets";
}

TEST_F(StyledPopUpButtonWrapperTest, TellsOfEachChoiceInWhicheverWay) {
    keyed(Qt::Key_Home);
    EXPECT_EQ(m_value, PopupObject(1));
    keyed(Qt::Key_Down);
    EXPECT_EQ(m_value, PopupObject(QStringLiteral("2")));
    keyed(Qt::Key_Down);
    EXPECT_FALSE(m_value.isPresent()) << "past the divider and what is disabled";
    m_button->openMenu();
    QTest::keyClicks(m_button->menu(), QStringLiteral("one"));
    QTest::keyClick(m_button->menu(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_value, PopupObject(1));
    m_button->itemArray()[5]->submenu()->items()[0]->trigger();
    EXPECT_EQ(m_value, PopupObject(4));
    EXPECT_EQ(m_button->title(), QStringLiteral("Four"));
    PopUpCyclingButton cycling;
    cycling.setTarget(m_button);
    cycling.click();
    EXPECT_EQ(m_value, PopupObject(1)) << "around the end";
    EXPECT_EQ(m_sets, 6);
}

TEST_F(StyledPopUpButtonWrapperTest, TheOwnerMayRefuseRefillAndDestroy) {
    m_then = [this] { m_value = 4; };
    EXPECT_EQ(keyed(Qt::Key_Home), QStringLiteral("Four"));
    m_then = [this] { m_button->setItems({{.object = 1, .title = QStringLiteral("First")}}); };
    EXPECT_EQ(keyed(Qt::Key_Home), QStringLiteral("First"));
    m_button->setItems(items());
    m_then = [this] { delete m_button; };
    QTest::keyClick(m_button, Qt::Key_End);
    EXPECT_EQ(m_button, nullptr);
}
