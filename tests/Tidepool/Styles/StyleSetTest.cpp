#include "Tidepool/Styles/StyleSet.h"
#include "Tidepool/Buttons/BackButton.h"
#include "Tidepool/Buttons/StyledCheckBox.h"
#include "tests/support/EventCounter.h"
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

/// The colour in the middle of the mark-free part of a box that is on.
QColor boxColor(QWidget& window, platform::PushButton& box) {
    box.setState(platform::ControlState::on);
    box.resize(box.sizeHint());
    window.resize(box.size());
    return picture(box).pixelColor(6, box.height() / 2 - 5);
}

} // namespace

TEST(StyleSet, ASetAndTheAppearanceChangeARunningWindowAndBack) {
    QWidget window;
    BackButton button(QStringLiteral("Back"), &window);
    const QImage dark = look(button);
    StyleSet::apply(window, makeStyleSet(Appearance::light));
    const QImage light = look(button);
    EXPECT_GT(difference(light, dark), 60);
    EXPECT_EQ(platform::currentAppearance(), Appearance::dark) << "only the set is light";
    StyleSet::apply(window, nullptr);
    EXPECT_EQ(difference(look(button), dark), 0);
    platform::setAppearance(Appearance::light);
    BackButton late(QStringLiteral("Back"), &window);
    EXPECT_EQ(difference(look(late), light), 0);
    EXPECT_EQ(difference(look(button), light), 0) << "a window never mixes the two";
    platform::setAppearance(Appearance::dark);
    EXPECT_EQ(difference(look(late), dark), 0);
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
    EventCounter changes(button, QEvent::StyleChange);
    const auto changesDuring = [&](const std::function<void()>& act) {
        changes.count = 0;
        act();
        return changes.count;
    };
    const QImage before = look(button);
    const QSize size = group.sizeHint();

    EXPECT_EQ(changesDuring([&] { group.setParent(&window); }), 0) << "nobody has a set";
    EXPECT_EQ(changesDuring([&] { StyleSet::apply(window, set); }), 1);
    EXPECT_EQ(changesDuring([&] { group.setParent(nullptr); }), 1);
    EXPECT_EQ(group.sizeHint(), size);
    EXPECT_EQ(changesDuring([&] { group.setParent(&window); }), 1) << "its parent's parent is new";
    EXPECT_GT(group.sizeHint().width(), size.width() + 20);
    EXPECT_GT(difference(look(button), before), 60);
    EXPECT_EQ(changesDuring([&] { StyleSet::apply(window, nullptr); }), 1);
    EXPECT_EQ(changesDuring([&] { button.cell().setStyle(large); }), 1);
    EXPECT_EQ(changesDuring([&] { platform::setAppearance(Appearance::dark); }), 1);
}
