#include "Tidepool/Styles/StyleSet.h"
#include "Tidepool/Buttons/BackButton.h"
#include "Tidepool/Buttons/StyledCheckBox.h"
#include "Tidepool/Palette/TPColors.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/CheckBoxCellStyle.h"
#include "Tidepool/Styles/TableViewStyle.h"
#include "tests/support/Pixels.h"

#include <QHBoxLayout>

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

/// Counts how often what it watches is told of a change of styles.
class StyleChanges : public QObject {
public:
    int during(const std::function<void()>& change) {
        count = 0;
        change();
        return count;
    }

    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }

private:
    int count = 0;
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

TEST(StyleSet, IsAnnouncedToWhatComesIntoItsReachAndLeavesIt) {
    const auto large = makeStyle<ButtonCellStyle>({Appearance::light});
    large->setFont(QFont(large->font().family(), 60));
    const auto set = std::make_shared<StyleSet>();
    set->set<ButtonCellStyle>(large);
    QWidget window;
    QWidget group;
    QHBoxLayout layout(&group);
    StyledButton button(QStringLiteral("OK"));
    layout.addWidget(&button);
    StyleChanges changes;
    button.installEventFilter(&changes);
    const QImage before = look(button);
    const QSize size = group.sizeHint();

    EXPECT_EQ(changes.during([&] { group.setParent(&window); }), 0) << "nobody has a set";
    EXPECT_EQ(changes.during([&] { StyleSet::apply(window, set); }), 1);
    EXPECT_EQ(changes.during([&] { group.setParent(nullptr); }), 1);
    EXPECT_EQ(group.sizeHint(), size);
    EXPECT_EQ(changes.during([&] { group.setParent(&window); }), 1) << "its parent's parent is new";
    EXPECT_GT(group.sizeHint().width(), size.width() + 20);
    EXPECT_GT(difference(look(button), before), 60);
    EXPECT_EQ(changes.during([&] { StyleSet::apply(window, nullptr); }), 1);
    EXPECT_EQ(changes.during([&] { button.cell().setStyle(large); }), 1);
    EXPECT_EQ(changes.during([&] { platform::setAppearance(Appearance::dark); }), 1);
}

TEST(SharedStyle, FollowsTheAppearanceInForce) {
    QWidget window;
    BackButton early(QStringLiteral("Back"), &window);
    const QImage dark = look(early);
    platform::setAppearance(Appearance::light);
    BackButton late(QStringLiteral("Back"), &window);
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
