#include "Tidepool/Styles/StyleSet.h"
#include "Tidepool/Buttons/BackButton.h"
#include "Tidepool/Buttons/StyledCheckBox.h"
#include "Tidepool/Palette/TPColors.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/CheckBoxCellStyle.h"
#include "Tidepool/Styles/TableViewStyle.h"
#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

using namespace tidepool;
using platform::Appearance;

namespace {

QImage look(platform::PushButton& button) {
    button.resize(60, 28);
    return picture(button);
}

class MakerStyle : public ButtonCellStyle {
public:
    MakerStyle() {
        setBackgroundColor(TPColors::Background::normal);
        setBezelImages({{StyledControlState::defaultState, TPImages::checkboxOn}});
    }
};

/// The colour in the middle of the mark-free part of a box that is on.
QColor boxColor(QWidget& window, platform::PushButton& box) {
    box.setState(platform::ControlState::on);
    box.resize(box.sizeHint());
    window.resize(box.size());
    return picture(box).pixelColor(6, box.height() / 2 - 5);
}

} // namespace

TEST(StyleSet, ChangeARunningWindowAndBack) {
    QWidget window;
    BackButton button(QStringLiteral("Back"), &window);
    const QImage dark = look(button);
    StyleSet::apply(window, makeStyleSet(Appearance::light));
    EXPECT_GT(difference(look(button), dark), 60);
    EXPECT_EQ(platform::currentAppearance(), Appearance::dark) << "only the set is light";
    StyleSet::apply(window, makeStyleSet(Appearance::dark));
    EXPECT_EQ(difference(look(button), dark), 0);
    StyleSet::apply(window, nullptr);
    EXPECT_EQ(difference(look(button), dark), 0);
}

TEST(StyleSet, AccentReplacesTheBlueAndNothingElse) {
    QWidget window;
    StyledCheckBox box({}, &window);
    const QColor blue = boxColor(window, box);
    StyleSet::apply(window, makeStyleSet(Appearance::dark, QColor(230, 90, 30)));
    const QColor orange = boxColor(window, box);
    EXPECT_NEAR(blue.hue(), 220, 12);
    EXPECT_NEAR(orange.hue(), 18, 12);
    EXPECT_GT(orange.saturation(), 120);

    box.setState(platform::ControlState::off);
    const QImage off = picture(box);
    StyleSet::apply(window, nullptr);
    EXPECT_LE(difference(off, picture(box)), 1) << "a box that is off has no accent";
}

TEST(SharedStyle, FollowsTheAppearanceInForce) {
    BackButton early(QStringLiteral("Back"));
    const QImage dark = look(early);
    platform::setAppearance(Appearance::light);
    BackButton late(QStringLiteral("Back"));
    const QImage light = look(late);
    EXPECT_GT(difference(light, dark), 60);
    EXPECT_EQ(difference(look(early), light), 0) << "a window never mixes the two";
    platform::setAppearance(Appearance::dark);
    EXPECT_EQ(difference(look(late), dark), 0);
}

TEST(StyleSet, MakesTheStylesOfAllClassesInItsAppearance) {
    const QColor accent(230, 90, 30);
    const auto set = makeStyleSet(Appearance::light, accent);
    const auto* style = set->get<MakerStyle>();
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(style, set->get<MakerStyle>()) << "made once";
    EXPECT_EQ(style->appearanceName(), Appearance::light);
    EXPECT_GT(style->backgroundColor().lightness(), 128);
    EXPECT_EQ(style->focusRingColor(), accent);
    const QColor box = style->bezelImage({})->bitmap({16, 16}, 1).pixelColor(6, 3);
    EXPECT_NEAR(box.hue(), accent.hue(), 12);
    EXPECT_EQ(set->get<OutlineViewStyle>()->selectedRowBackgroundColor(), accent);
    EXPECT_EQ(StyleSet().get<MakerStyle>(), nullptr);
}
