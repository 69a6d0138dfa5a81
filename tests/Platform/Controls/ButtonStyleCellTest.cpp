#include "Platform/Controls/ButtonStyle.h"
#include "Platform/Controls/FocusRing.h"
#include "Platform/Controls/PushButton.h"
#include "tests/support/Pixels.h"

#include <QApplication>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using platform::ButtonConfiguration;
using platform::PushButton;

namespace {

class PlainStyle : public platform::ButtonStyle {
public:
    explicit PlainStyle(ButtonConfiguration& painted) : m_painted(painted) {}

    QFont font() const override { return QFont(QStringLiteral("Inter"), 20); }

    QSizeF size(QSizeF label) const override { return {label.width() + 10.2, 24}; }

    void paint(QPainter& painter, const ButtonConfiguration& configuration) const override {
        m_painted = configuration;
        painter.fillRect(configuration.frame, configuration.isPressed() ? Qt::green : Qt::blue);
        if (configuration.isFocused())
            platform::drawFocusRing(painter, configuration.frame, {.radius = 7});
    }

private:
    ButtonConfiguration& m_painted;
};

class ButtonStyleCellTest : public testing::Test {
protected:
    ButtonStyleCellTest() : m_column(&m_window) {
        m_column.addWidget(&m_other);
        m_column.addWidget(&m_button);
        m_other.setFocusPolicy(Qt::StrongFocus);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_other.setFocus();
    }

    ButtonConfiguration painted() {
        picture(m_button);
        return m_painted;
    }

    QPoint inside() const { return m_button.rect().center(); }

    QPoint outside() const { return {m_button.width() + 30, 5}; }

    ButtonConfiguration m_painted;
    QWidget m_window;
    QVBoxLayout m_column;
    QWidget m_other;
    PushButton m_button{QStringLiteral("Play"), std::make_unique<PlainStyle>(m_painted)};
    QSignalSpy m_clicks{&m_button, &PushButton::clicked};
};

} // namespace

TEST_F(ButtonStyleCellTest, PointerClicksOnReleaseInside) {
    QTest::mousePress(&m_button, Qt::LeftButton, {}, inside());
    EXPECT_TRUE(painted().isPressed());
    const QImage pressed = picture(m_button);
    EXPECT_EQ(m_clicks.count(), 0);
    QTest::mouseRelease(&m_button, Qt::LeftButton, {}, inside());
    EXPECT_EQ(m_clicks.count(), 1);
    EXPECT_FALSE(painted().isPressed());
    EXPECT_GT(difference(pressed, picture(m_button)), 100);
    QTest::mouseClick(&m_button, Qt::RightButton, {}, inside());
    EXPECT_EQ(m_clicks.count(), 1);
}

TEST_F(ButtonStyleCellTest, ReleaseOutsideIsNoClick) {
    QTest::mousePress(&m_button, Qt::LeftButton, {}, inside());
    QMouseEvent away(QEvent::MouseMove, outside(), m_button.mapToGlobal(outside()), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(&m_button, &away);
    EXPECT_FALSE(painted().isPressed()) << "the look follows the pointer";
    QTest::mouseRelease(&m_button, Qt::LeftButton, {}, outside());
    EXPECT_EQ(m_clicks.count(), 0);
}

TEST_F(ButtonStyleCellTest, TabReachesItAndKeysPressIt) {
    QTest::mouseClick(&m_button, Qt::LeftButton, {}, inside());
    EXPECT_FALSE(m_button.hasFocus()) << "the pointer leaves the keyboard where it is";
    m_clicks.clear();
    const QImage unfocused = picture(m_button);
    QTest::keyClick(&m_window, Qt::Key_Tab);
    ASSERT_TRUE(m_button.hasFocus());
    EXPECT_TRUE(painted().isFocused());
    EXPECT_GT(difference(unfocused, picture(m_button)), 30) << "a ring shows the focus";

    QTest::keyPress(&m_button, Qt::Key_Space);
    EXPECT_TRUE(painted().isPressed());
    EXPECT_EQ(m_clicks.count(), 0);
    QTest::keyRelease(&m_button, Qt::Key_Space);
    EXPECT_EQ(m_clicks.count(), 1);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
        m_clicks.clear();
        QTest::keyClick(&m_button, key);
        EXPECT_TRUE(painted().isPressed()) << "the press is seen";
        EXPECT_TRUE(m_clicks.wait(1000));
        EXPECT_EQ(m_clicks.count(), 1);
        EXPECT_FALSE(painted().isPressed());
    }
}

TEST_F(ButtonStyleCellTest, AKeyThatIsHeldPressesOnce) {
    QTest::keyPress(&m_button, Qt::Key_Return);
    for (int i = 0; i < 3; ++i) {
        QTest::qWait(130);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
        QApplication::sendEvent(&m_button, &repeated);
    }
    QTest::keyRelease(&m_button, Qt::Key_Return);
    QTest::qWait(130);
    EXPECT_EQ(m_clicks.count(), 1);
}

TEST_F(ButtonStyleCellTest, DisablingCancelsWhatReturnHasPressed) {
    QTest::keyClick(&m_button, Qt::Key_Return);
    m_button.setEnabled(false);
    QTest::qWait(150);
    EXPECT_EQ(m_clicks.count(), 0);
}

TEST_F(ButtonStyleCellTest, DisabledIgnoresEverything) {
    m_button.setEnabled(false);
    EXPECT_FALSE(painted().isEnabled());
    QTest::mouseClick(&m_button, Qt::LeftButton, {}, inside());
    QTest::keyClick(&m_button, Qt::Key_Space);
    QTest::keyClick(&m_button, Qt::Key_Return);
    QTest::qWait(150);
    EXPECT_EQ(m_clicks.count(), 0);
    QTest::keyClick(&m_window, Qt::Key_Tab);
    EXPECT_FALSE(m_button.hasFocus());
}

TEST_F(ButtonStyleCellTest, IsAsWideAsItsLabel) {
    const qreal natural =
        QFontMetricsF(QFont(QStringLiteral("Inter"), 20)).horizontalAdvance(QStringLiteral("Play"));
    EXPECT_EQ(m_button.sizeHint(), QSize(static_cast<int>(std::ceil(natural + 10.2)), 24));
    EXPECT_EQ(painted().label, QStringLiteral("Play"));
}
