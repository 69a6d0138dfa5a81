#include "Platform/Controls/ButtonStyle.h"
#include "Platform/Controls/PushButton.h"
#include "tests/support/Pixels.h"

#include <QPainter>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

using platform::ButtonConfiguration;

namespace {

class PlainStyle : public platform::ButtonStyle {
public:
    explicit PlainStyle(ButtonConfiguration& painted) : m_painted(painted) {}

    QFont font() const override { return QFont(QStringLiteral("Inter"), 20); }

    QSizeF size(QSizeF label) const override { return {label.width() + 10.2, 24}; }

    void paint(QPainter&, const ButtonConfiguration& configuration) const override {
        m_painted = configuration;
    }

private:
    ButtonConfiguration& m_painted;
};

} // namespace

TEST(ButtonStyleCell, TheStyleIsToldTheLabelAndEveryStateAndSetsTheSize) {
    ButtonConfiguration painted;
    QWidget window;
    platform::PushButton button(QStringLiteral("Play"), std::make_unique<PlainStyle>(painted), &window);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto look = [&] {
        picture(button);
        return painted;
    };
    const qreal natural =
        QFontMetricsF(QFont(QStringLiteral("Inter"), 20)).horizontalAdvance(QStringLiteral("Play"));
    EXPECT_EQ(button.sizeHint(), QSize(static_cast<int>(std::ceil(natural + 10.2)), 24));
    button.clearFocus();
    EXPECT_FALSE(look().isPressed() || look().isFocused());
    EXPECT_EQ(painted.label, QStringLiteral("Play"));
    button.setFocus();
    QTest::keyPress(&button, Qt::Key_Space);
    EXPECT_TRUE(look().isPressed() && look().isFocused());
    button.setEnabled(false);
    EXPECT_FALSE(look().isEnabled() || look().isPressed());
}
