#include "Platform/Controls/Menu.h"
#include "Platform/Text/FieldEditor.h"
#include "Tidepool/Text/StyledSearchFieldWrapper.h"
#include "Tidepool/Text/VantorStyledTextField.h"
#include "tests/support/ActionCounter.h"
#include "tests/support/Pixels.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

using tidepool::StyledSearchField;

namespace {

class StyledSearchFieldTest : public testing::Test {
protected:
    StyledSearchFieldTest() {
        field.setGeometry(0, 0, 160, 24);
        field.setAction(ActionCounter::first, &counter);
        other.move(0, 40);
        window.resize(200, 80);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }

    static void type(const char* text) {
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
    }

    QMenu* openMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

    QWidget window;
    ActionCounter counter;
    StyledSearchField field{&window};
    QPushButton other{&window};
};

} // namespace

TEST_F(StyledSearchFieldTest, SearchesWhileOneTypesOrWhenOneHasTyped) {
    field.setFocus();
    type("pad");
    EXPECT_EQ(counter.count, 3);
    other.setFocus();
    EXPECT_EQ(counter.count, 3) << "nothing new";
    field.setSendsWholeSearchString(true);
    field.setFocus();
    type("s");
    EXPECT_EQ(counter.count, 3);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(counter.count, 4);
}

TEST_F(StyledSearchFieldTest, EscapeAndTheCrossTakeTheTextAway) {
    field.setFocus();
    type("pad");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(field.stringValue().size(), 0);
    EXPECT_EQ(counter.count, 4);
    QTest::keySequence(QApplication::focusWidget(), QKeySequence::Undo);
    EXPECT_EQ(field.stringValue(), QStringLiteral("pad"));
    const QPoint cross(148, 12);
    QTest::mousePress(&field, Qt::LeftButton, {}, cross);
    QTest::mouseRelease(&field, Qt::LeftButton, {}, {60, 12});
    EXPECT_EQ(field.stringValue(), QStringLiteral("pad")) << "let go elsewhere";
    QTest::mouseClick(&field, Qt::LeftButton, {}, cross);
    EXPECT_EQ(field.stringValue().size(), 0);
    EXPECT_TRUE(field.isFirstResponder());
    field.setStringValue(QStringLiteral("pad"));
    field.setLayoutDirection(Qt::RightToLeft);
    QTest::mouseClick(&field, Qt::LeftButton, {}, {12, 12});
    EXPECT_EQ(field.stringValue().size(), 0);
}

TEST_F(StyledSearchFieldTest, RemembersSearchesInItsMenu) {
    field.setMaximumRecents(2);
    for (const char* const text : {"bass", "pad", "  ", "bass", "lead"}) {
        field.setFocus(Qt::TabFocusReason);
        type(text);
        other.setFocus();
    }
    EXPECT_EQ(field.recentSearches(), QStringList({QStringLiteral("lead"), QStringLiteral("bass")}));
    const int sent = counter.count;
    QTest::mouseClick(&field, Qt::LeftButton, {}, {12, 12});
    ASSERT_NE(openMenu(), nullptr);
    QTest::keyClick(openMenu(), Qt::Key_B);
    QTest::keyClick(openMenu(), Qt::Key_Return);
    EXPECT_EQ(field.stringValue(), QStringLiteral("bass"));
    EXPECT_GT(counter.count, sent);
    field.setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
    ASSERT_NE(openMenu(), nullptr);
    QTest::keyClick(openMenu(), Qt::Key_C);
    QTest::keyClick(openMenu(), Qt::Key_Return);
    EXPECT_TRUE(field.recentSearches().isEmpty());
}

TEST_F(StyledSearchFieldTest, TextStandsWhereItsNeighboursLeaveRoom) {
    auto& cell = field.cell();
    const QRectF bounds(0, 0, 160, 24);
    const auto text = [&] { return cell.searchTextRect(bounds, field.context()); };
    EXPECT_EQ(text().left(), cell.searchButtonRect(bounds, field.context()).right() - 10);
    field.setStringValue(QStringLiteral("pad"));
    EXPECT_EQ(text().right(), cell.cancelButtonRect(bounds, field.context()).left() + 2);
    const QRectF leftToRight = text();
    field.setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(text().left(), 160 - leftToRight.right());
    field.setLayoutDirection(Qt::LeftToRight);
    cell.setShowsSearchIcon(false);
    EXPECT_EQ(text().left(), 4);
    const QImage with = picture(field);
    cell.setPlaceholderString(QStringLiteral("Search"));
    cell.setPlaceholderString(std::nullopt);
    EXPECT_FALSE(cell.internalPlaceholderString());
    field.setStringValue({});
    EXPECT_GT(difference(picture(field), with), 0);
    EXPECT_EQ(cell.placeholderString(), QStringLiteral("Search")) << "what was drawn goes on being drawn";
}

TEST(TextBindings, GoBothWays) {
    QString text = QStringLiteral("first");
    QList<bool> edits;
    const platform::Binding<QString> binding([&] { return text; }, [&](const QString& set) { text = set; });
    tidepool::StyledSearchFieldWrapper search(binding, QStringLiteral("Search"));
    tidepool::VantorStyledTextField field(QStringLiteral("Name"), binding, {},
                                          [&](bool isChanging) { edits << isChanging; });
    EXPECT_EQ(field.field().stringValue(), text);
    field.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&field));
    field.setFocus();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("!"));
    EXPECT_EQ(text.size(), 6);
    QApplication::focusWidget()->clearFocus();
    EXPECT_EQ(edits, QList<bool>({true, false}));
    search.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&search));
    EXPECT_EQ(search.field().stringValue(), QStringLiteral("first"));
    search.updateView();
    EXPECT_EQ(search.field().stringValue(), text);
    search.setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(text.size(), 0);
}
