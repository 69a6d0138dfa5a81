#include "Tidepool/Styles/ButtonCellStyle.h"
#include "Tidepool/Styles/PopUpButtonCellStyles.h"
#include "Tidepool/Styles/TableViewStyle.h"
#include "Tidepool/Styles/TextFieldCellStyle.h"
#include "Tidepool/Styles/WindowStyle.h"

#include <gtest/gtest.h>

using namespace tidepool;
using State = StyledControlState;

namespace {

/// Each colour of the style can be told from the others.
ControlStyle colorful() {
    ControlStyle style;
    style.setTextColor(QColor(1, 0, 0));
    style.setSelectedTextColor(QColor(2, 0, 0));
    style.setDisabledTextColor(QColor(3, 0, 0));
    style.setHighlightedTextColor(QColor(4, 0, 0));
    style.setInvalidTextColor(QColor(5, 0, 0));
    style.setBackgroundColor(QColor(0, 1, 0));
    style.setSelectedBackgroundColor(QColor(0, 2, 0));
    style.setDisabledBackgroundColor(QColor(0, 3, 0));
    style.setHighlightedBackgroundColor(QColor(0, 4, 0));
    style.setInvalidBackgroundColor(QColor(0, 5, 0));
    return style;
}

class AccentStyle : public ButtonCellStyle {
public:
    const QColor& highlightedTextColor() const override { return m_accent; }

private:
    QColor m_accent = Qt::magenta;
};

} // namespace

TEST(ControlStyle, TextAndBackgroundWeighTheFlagsDifferently) {
    const ControlStyle style = colorful();
    const auto text = [&](State state) { return style.textColor(state).red(); };
    EXPECT_EQ(text(State::defaultState), 1);
    EXPECT_EQ(text(State::disabled | State::invalid | State::selected), 3);
    EXPECT_EQ(text(State::invalid | State::selected | State::on), 5);
    EXPECT_EQ(text(State::selected | State::highlighted), 2);
    for (const State active : {State::highlighted, State::on, State::mixed})
        EXPECT_EQ(text(active | State::focused), 4);

    const auto background = [&](State state) { return style.backgroundColor(state).green(); };
    EXPECT_EQ(background(State::focused), 1);
    EXPECT_EQ(background(State::disabled | State::invalid), 5);
    EXPECT_EQ(background(State::on | State::selected | State::disabled), 4);
    EXPECT_EQ(background(State::selected | State::disabled), 2);
    EXPECT_EQ(background(State::disabled), 3);
}

TEST(ControlStyle, LookUpsGoThroughOverriddenAccessors) {
    EXPECT_EQ(AccentStyle().textColor(State::on), QColor(Qt::magenta));
}

TEST(ControlStyle, SubclassesStartFromTheirParents) {
    const ToolPopUpButtonCellStyle tool;
    EXPECT_EQ(tool.alignmentRectInsets(), QMarginsF());
    EXPECT_EQ(tool.titleEdgeInsets(), QMarginsF(4, 0, 14, 0)) << "top 0, left 4, bottom 0, right 14";
    EXPECT_EQ(tool.selectedTextColor(), tool.textColor()) << "of its parent";
    EXPECT_EQ(tool.font().weight(), QFont::Medium) << "of its parent's parent";

    const TextLabelCellStyle label;
    EXPECT_EQ(label.alignmentRectInsets(), QMarginsF(2, 2, 2, 2));
    EXPECT_EQ(label.padding(), QMarginsF());
    EXPECT_NE(label.textColor(), TextFieldCellStyle().textColor());

    const OutlineViewStyle outline;
    EXPECT_EQ(outline.backgroundColor(), outline.rowBackgroundColor());
    EXPECT_EQ(PopoverStyle().padding(), QSizeF(10, 6));
}
