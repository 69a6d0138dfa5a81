#include "Gallery/Pages/StatesPage.h"
#include "Gallery/Pages/StyleClasses.h"
#include "Tidepool/Styles/TextFieldCellStyle.h"

#include <QLabel>

#include <gtest/gtest.h>

using gallery::StatesPage;
using gallery::styleClassIndex;
using State = tidepool::StyledControlState;

namespace {

/// The page as it is read, label by label.
QStringList texts(const StatesPage& page) {
    QStringList found;
    const auto labels = page.findChildren<QLabel*>();
    for (const QLabel* label : labels)
        found << label->text();
    return found;
}

} // namespace

TEST(StatesPage, ShowsWhatTheStateResolvesTo) {
    const auto selection = std::make_shared<StatesPage::Selection>();
    selection->styleClass = styleClassIndex("TextFieldCellStyle");
    selection->state = State::focused | State::invalid;
    StatesPage page({}, selection);
    EXPECT_EQ(texts(page).count(QStringLiteral("Error")), 3) << "text, background and focus ring";
    // In the result, and in the table for invalid alone and with focused.
    EXPECT_EQ(texts(page).count(QStringLiteral("tpk-textfield-error")), 3);
    EXPECT_EQ(texts(page).count(QStringLiteral("taken")), 1);

    page.setFlags(State::invalid, false);
    EXPECT_TRUE(texts(page).contains(QStringLiteral("Grey 85%")));
    EXPECT_EQ(texts(page).count(QStringLiteral("tpk-textfield-focus")), 2);

    page.setStyleClass(styleClassIndex("TextLabelCellStyle"));
    EXPECT_TRUE(texts(page).contains(QStringLiteral("This style has no images.")));
    EXPECT_EQ(selection->state, State::focused) << "kept for a page made later";
}
