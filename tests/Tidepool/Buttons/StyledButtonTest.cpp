#include "Tidepool/Buttons/StyledButton.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Buttons/DarkHighlightButton.h"
#include "Tidepool/Buttons/StyledCheckBox.h"
#include "Tidepool/Palette/TPImages.h"
#include "Tidepool/Styles/Validating.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/EventCounter.h"
#include "tests/support/Pixels.h"

#include <QTest>

#include <gtest/gtest.h>

using namespace tidepool;
using platform::ButtonCell;
using platform::ControlState;
using platform::ImagePosition;
using State = StyledControlState;

namespace {

platform::Image square(const platform::ImageResource& resource = TPImages::checkbox) {
    return resource.image();
}

class ValidatedButton : public StyledButton, public Validating {
public:
    using StyledButton::StyledButton;

    bool isValid() const override { return valid; }

    bool valid = true;
};

/// The pixel that is the most opaque, premultiplied.
QRgb strongest(platform::PushButton& button) {
    QImage image(button.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    button.render(&image, {}, {}, QWidget::RenderFlags());
    QRgb strongest = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
            strongest = qAlpha(pixel) > qAlpha(strongest) ? pixel : strongest;
        }
    return strongest;
}

} // namespace

TEST(StyledButtonCell, StateFollowsTheControl) {
    ValidatedButton button;
    button.setState(ControlState::on);
    EXPECT_EQ(button.context().state, State::defaultState) << "a push button shows no state";
    button.cell().setButtonType(ButtonCell::ButtonType::pushOnPushOff);
    EXPECT_EQ(button.context().state, State::defaultState | State::on);
    button.setState(ControlState::mixed);
    button.setDown(true);
    button.setSelected(true);
    EXPECT_EQ(button.context().state,
              State::defaultState | State::mixed | State::highlighted | State::selected);
    button.valid = false;
    button.setEnabled(false);
    button.setDown(true);
    EXPECT_EQ(button.context().state,
              State::defaultState | State::mixed | State::disabled | State::selected | State::invalid)
        << "a disabled button is never highlighted";
}

TEST(StyledButtonCell, GeometryFollowsTheInsetsOfTheStyle) {
    const auto style = std::make_shared<ButtonCellStyle>();
    style->setEdgeInsets({3, 1, 2, 4});
    style->setImageEdgeInsets({1, -1, 0, 1});
    style->setTitleEdgeInsets({4, 6, 0, 0});
    StyledButton button;
    StyledButtonCell& cell = button.cell();
    cell.setStyle(style);
    const QRectF bounds(0, 0, 100.5, 31);
    EXPECT_EQ(cell.drawingRect(bounds, button.context()), QRectF(3, 1, 96, 26)) << "integral";

    cell.setBordered(false);
    button.setImage(square());
    button.setImagePosition(ImagePosition::imageLeading);
    button.setText(QStringLiteral("Title"));
    const auto image = [&] { return cell.imageRect(QRectF(0, 0, 100, 31), button.context()); };
    const auto title = [&] { return cell.titleRect(QRectF(0, 0, 100, 31), button.context()); };
    EXPECT_EQ(image().size(), QSizeF(16, 16));
    EXPECT_EQ(image().top(), 7) << "the middle of the bounds, without its fraction, whatever the insets";
    EXPECT_NEAR(title().center().y(), 15.5, 1);
    cell.setVerticallyCenterTitle(false);
    EXPECT_NEAR(title().center().y(), 18.5, 1) << "the middle of what the insets leave";
    button.setLayoutDirection(Qt::RightToLeft);
    EXPECT_GT(image().left(), title().right() - 1);
}

TEST(StyledButtonCell, TemplatesHaveTheTextColorOfTheSetInForceAndAreDimmedOnce) {
    QWidget window;
    const auto style = std::make_shared<ButtonCellStyle>();
    style->setTextColor(QColor(0, 200, 0));
    const auto set = std::make_shared<StyleSet>();
    set->set<ButtonCellStyle>(style);
    StyleSet::apply(window, set);
    StyledButton styled({}, &window);
    styled.cell().setButtonType(ButtonCell::ButtonType::pushOnPushOff);
    DarkHighlightButton plain(&window);
    for (platform::PushButton* const button : std::initializer_list<platform::PushButton*>{&styled, &plain}) {
        SCOPED_TRACE(button->metaObject()->className());
        button->setBordered(false);
        button->setImage(Images::organiserIconDisclose);
        button->setImagePosition(ImagePosition::imageOnly);
        button->resize(30, 30);
        const QRgb usual = strongest(*button);
        EXPECT_LE(difference(qUnpremultiply(usual), qRgba(0, 200, 0, qAlpha(usual))), 1);
        button->setState(ControlState::on);
        EXPECT_EQ(strongest(*button), usual) << "as bright when on";
        const auto isHalf = [&] {
            const QRgb color = strongest(*button);
            return std::abs(2 * qAlpha(color) - qAlpha(usual)) <= 2 &&
                   std::abs(2 * qGreen(color) - qGreen(usual)) <= 4;
        };
        button->setDown(true);
        EXPECT_TRUE(isHalf());
        button->setDown(false);
        button->setEnabled(false);
        EXPECT_TRUE(isHalf());
    }
    StyleSet::apply(window, nullptr);
}

TEST(StyledButtonCell, DrawingAgainAllocatesNothing) {
    StyledButton button(QStringLiteral("Title"));
    button.setImage(square(TPImages::checkboxOn));
    QImage image(90, 24, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QRectF frame(0, 0, 90, 24);
    const platform::CellContext context = button.context();
    button.cell().draw(painter, frame, context);
    const AllocationCounter counter;
    button.cell().draw(painter, frame, context);
    EXPECT_EQ(counter.allocations(), 0);
}

TEST(StyledButton, RingIsDrawnOnlyWithTheKeyboardInTheKeyWindow) {
    QWidget window;
    StyledButton button(QStringLiteral("OK"), &window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    button.clearFocus();
    const QImage without = picture(button);
    button.setFocus();
    const QImage with = picture(button);
    EXPECT_GT(difference(without, with), 60);
    const QColor ring = sharedStyle<ButtonCellStyle>().focusRingColor();
    EXPECT_LT(difference(with.pixel(with.width() / 2, 1), ring.rgb()), 8);

    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_EQ(difference(without, picture(button)), 0);
}

TEST(StyledButton, EveryChangeRepaintsTheButtonOnceAndNothingElse) {
    QWidget window;
    window.resize(400, 300);
    StyledButton button(QStringLiteral("OK"), &window);
    button.setGeometry(20, 20, 80, 24);
    StyledButton neighbor(QStringLiteral("No"), &window);
    neighbor.setGeometry(120, 20, 80, 24);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    button.clearFocus();
    QCoreApplication::processEvents();
    EventCounter own(button, QEvent::Paint);
    const EventCounter others(neighbor, QEvent::Paint);
    const auto paints = [&](const std::function<void()>& change) {
        own.count = 0;
        change();
        QCoreApplication::processEvents();
        return own.count;
    };
    EXPECT_EQ(paints([&] { button.setDown(true); }), 1);
    EXPECT_EQ(paints([&] { button.setDown(false); }), 1);
    for (const int expected : {1, 0}) { // the same again changes nothing
        EXPECT_EQ(paints([&] { button.setSelected(true); }), expected);
        EXPECT_EQ(paints([&] { button.setState(ControlState::on); }), expected);
        EXPECT_EQ(paints([&] { button.setEnabled(false); }), expected);
    }
    EXPECT_EQ(others.count, 0);
}

TEST(StyleSet, HoldsForAWindowAndGivesWayToAnOwnStyle) {
    QWidget window;
    QWidget group(&window);
    StyledButton button(QStringLiteral("OK"), &group);
    StyledCheckBox box(QStringLiteral("Box"), &group);
    const auto color = [](const StyledButton& control) {
        return control.cell().style().textColor(State::defaultState);
    };
    const auto styled = [](QColor text) {
        auto style = std::make_shared<ButtonCellStyle>();
        style->setTextColor(text);
        return style;
    };
    const auto set = std::make_shared<StyleSet>();
    set->set<ButtonCellStyle>(styled(Qt::red));
    StyleSet::apply(window, set);
    EXPECT_EQ(color(button), QColor(Qt::red));
    EXPECT_EQ(color(box), sharedStyle<CheckBoxCellStyle>().textColor()) << "a check box has its own class";

    const auto inner = std::make_shared<StyleSet>();
    inner->set<ButtonCellStyle>(styled(Qt::green));
    StyleSet::apply(group, inner);
    EXPECT_EQ(color(button), QColor(Qt::green));
    button.cell().setStyle(styled(Qt::blue));
    EXPECT_EQ(color(button), QColor(Qt::blue));
    button.cell().setStyle(nullptr);
    StyleSet::apply(group, nullptr);
    EXPECT_EQ(color(button), QColor(Qt::red)) << "what lies around holds again";
    button.setParent(nullptr);
    EXPECT_EQ(color(button), sharedStyle<ButtonCellStyle>().textColor());
    StyleSet::apply(window, nullptr);
}

TEST(StyledButtonStyle, AccessorsThatAMakerOverridesReachTheScreen) {
    class WarningStyle : public ButtonCellStyle {
    public:
        using ButtonCellStyle::textColor;

        const QColor& textColor() const override { return m_color; }

    private:
        QColor m_color{255, 0, 0};
    };

    StyledButton button(QStringLiteral("HHH"));
    button.cell().setStyle(std::make_shared<WarningStyle>());
    button.resize(button.sizeHint());
    const QImage image = picture(button);
    bool isRed = false;
    for (int x = 0; x < image.width(); ++x)
        isRed = isRed || difference(image.pixel(x, 13), qRgb(255, 0, 0)) < 60;
    EXPECT_TRUE(isRed);
}

TEST(StyledButtonCellDeathTest, ProgrammingErrorsStopTheProgram) {
    StyledButton button;
    button.setImage(square());
    button.cell().setImageScaling(static_cast<platform::ImageScaling>(4));
    EXPECT_DEATH(picture(button), "^Unhandled image scaling value\n$");
    StyledCheckBox box;
    StyledButton& base = box;
    EXPECT_DEATH(base.cell().setStyle(std::make_shared<ButtonCellStyle>()),
                 "^A cell was given a style of another class\n$");
}
