#include "Tidepool/Styles/ControlStyle.h"

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
