#include "Tidepool/Text/SimpleTextViewPopover.h"
#include "Tidepool/Styles/StyleSet.h"

#include <QTest>

#include <gtest/gtest.h>

using platform::RectEdge;
using tidepool::SimpleTextViewPopover;

namespace {

class SimpleTextViewPopoverTest : public testing::Test {
protected:
    SimpleTextViewPopoverTest() {
        view.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    /// Shows the message and returns the size of its text; nothing of it is cut off.
    QSize shown(const QString& message) {
        popover.showMessage(message, view, RectEdge::maxY);
        EXPECT_EQ(text.text(), message);
        EXPECT_TRUE(text.parentWidget()->rect().marginsRemoved({12, 12, 12, 12}).contains(text.geometry()));
        const QRect needed = text.fontMetrics().boundingRect(text.rect(), Qt::TextWordWrap, message);
        EXPECT_TRUE(text.rect().contains(needed)) << message.toStdString();
        EXPECT_EQ(popover.contentSize(), text.size() + QSize(2 * 10, 2 * 6)) << "the padding of the style";
        return text.size();
    }

    QWidget view;
    SimpleTextViewPopover popover;
    QLabel& text = popover.contentTextField();
};

} // namespace

TEST_F(SimpleTextViewPopoverTest, FitsItsTextWhateverItIs) {
    const QSize line = shown(QStringLiteral("Too short"));
    const QSize lines = shown(QStringLiteral("A preset needs a name. ").repeated(20).trimmed());
    EXPECT_LE(lines.width(), 320);
    EXPECT_GE(lines.height(), 5 * line.height());
    const QSize word = shown(QStringLiteral("Name").repeated(100));
    EXPECT_GT(word.width(), 1000) << "has no place to break";
    EXPECT_EQ(shown(QStringLiteral("Too short")), line) << "while it is shown";
    popover.showMessage(std::nullopt, view, RectEdge::maxY);
    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(text.text(), QString());
    EXPECT_EQ(popover.currentPositioningView(), &view);
}

TEST_F(SimpleTextViewPopoverTest, TakesTheLookOfItsView) {
    shown(QStringLiteral("Too short"));
    const QColor dark = text.palette().color(QPalette::WindowText);
    EXPECT_GT(dark.lightness(), 150);
    tidepool::StyleSet::apply(view, tidepool::makeStyleSet(platform::Appearance::light));
    EXPECT_LT(text.palette().color(QPalette::WindowText).lightness(), 100) << "while it is shown";
}
