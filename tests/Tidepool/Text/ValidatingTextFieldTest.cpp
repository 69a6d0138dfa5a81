#include "Platform/Text/FieldEditor.h"
#include "Tidepool/Formatters/ConstantNameFormatter.h"
#include "Tidepool/Text/ValidatingPropertiesField.h"
#include "tests/support/Pixels.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QVariantAnimation>

#include <gtest/gtest.h>

using tidepool::ValidatingTextField;

namespace {

class ValidatingTextFieldTest : public testing::Test {
protected:
    ValidatingTextFieldTest() {
        field.setGeometry(20, 20, 120, 22);
        other.move(20, 60);
        window.resize(200, 100);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus();
    }

    void type(const char* text) {
        field.setFocus();
        QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
    }

    QString shown() {
        auto& controller = field.popoverController();
        return controller.isShown() ? controller.popover().contentTextField().text() : QString();
    }

    QWidget window;
    ValidatingTextField field{QStringLiteral("Bass"), &window};
    QPushButton other{&window};
};

} // namespace

TEST_F(ValidatingTextFieldTest, ShowsItsMessageWhileTheUserTypes) {
    const QImage valid = picture(field);
    field.setValid(false);
    field.setMessage(QStringLiteral("Too short"));
    EXPECT_GT(difference(picture(field), valid), 50) << "the frame tells";
    EXPECT_EQ(shown(), QString());
    field.setFocus();
    EXPECT_EQ(shown(), QString()) << "nothing was typed yet";
    type("a");
    EXPECT_EQ(shown(), QStringLiteral("Too short"));
    EXPECT_EQ(field.popoverController().popover().currentPositioningView(), &field);
    field.setMessage(QStringLiteral("Still too short"));
    type("b");
    EXPECT_EQ(shown(), QStringLiteral("Still too short"));
    other.setFocus();
    EXPECT_EQ(shown(), QString());
    type("c");
    EXPECT_EQ(shown(), QStringLiteral("Still too short"));
    field.setMessage(std::nullopt);
    EXPECT_EQ(shown(), QStringLiteral("Still too short")) << "until the next change";
    type("d");
    EXPECT_EQ(shown(), QString());
}

TEST_F(ValidatingTextFieldTest, WhoListensMayDecideAboutWhatWasJustTyped) {
    QObject::connect(&field, &ValidatingTextField::textChanged, [this](const QString& text) {
        field.setValid(!text.endsWith(u'!'));
        field.setMessage(field.isValid() ? std::nullopt : std::optional(QStringLiteral("No shouting")));
    });
    type("!");
    EXPECT_EQ(shown(), QStringLiteral("No shouting"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
    EXPECT_EQ(shown(), QString());
}

TEST_F(ValidatingTextFieldTest, ShakesAndTellsWhyWhenItRefuses) {
    field.setFormatter(std::make_shared<tidepool::ConstantNameFormatter>());
    field.setObjectValue(QStringLiteral("gain"));
    const QPoint rest = field.pos();
    type(" ");
    EXPECT_TRUE(shown().startsWith(u"Constant names must"));
    const QPointer<QVariantAnimation> shaking = field.findChild<QVariantAnimation*>();
    ASSERT_NE(shaking, nullptr);
    shaking->pause();
    shaking->setCurrentTime(30);
    EXPECT_NE(field.pos(), rest);
    field.move(40, 30); // as a layout does meanwhile
    shaking->setCurrentTime(130);
    EXPECT_NE(field.pos(), QPoint(40, 30));
    shaking->resume();
    EXPECT_TRUE(QTest::qWaitFor([&] { return shaking == nullptr; }));
    EXPECT_EQ(field.pos(), QPoint(40, 30));
    type("s");
    EXPECT_EQ(shown(), QString());
    field.setStringValue(QStringLiteral("a b"));
    other.setFocus();
    EXPECT_EQ(shown(), QString());
}

TEST(ValidatingPropertiesField, MarksWhatIsOverriddenAndWhatIsWrong) {
    tidepool::ValidatingPropertiesField field(QStringLiteral("12"));
    field.resize(140, 24);
    const auto icon = [&] { return picture(field).copy(0, 0, 16, 24); };
    const QImage none = icon();
    field.setOverride(true);
    const QImage overriding = icon();
    EXPECT_GT(difference(overriding, none), 20);
    field.setValid(false);
    EXPECT_GT(difference(icon(), overriding), 20) << "what is wrong comes first";
    EXPECT_FALSE(field.textField().isValid());
    field.setValid(true);
    field.setLayoutDirection(Qt::RightToLeft);
    const QImage mirrored = picture(field);
    field.setOverride(false);
    EXPECT_GT(difference(picture(field).copy(124, 0, 16, 24), mirrored.copy(124, 0, 16, 24)), 20);
    field.setLayoutDirection(Qt::LeftToRight);
    field.setSelected(true);
    EXPECT_GT(difference(icon(), none), 20);
}
