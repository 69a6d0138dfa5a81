#include "Tidepool/BackButton.h"
#include "Tidepool/CornerButton.h"
#include "Tidepool/CursorButton.h"
#include "Tidepool/DarkHighlightButton.h"
#include "Tidepool/FavouriteCheckBox.h"
#include "Tidepool/PopUpCyclingButton.h"
#include "Tidepool/StyledCheckBox.h"
#include "Tidepool/ToolButton.h"
#include "Tidepool/VantorPushButton.h"
#include "tests/support/ActionCounter.h"

#include <QLineEdit>
#include <QPointingDevice>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <array>

using namespace tidepool;

namespace {

/// One button in a window with a shortcut for Escape and a field that has the keyboard.
template <typename Button>
class ButtonInputTest : public testing::Test {
protected:
    ButtonInputTest() : m_field(&m_window), m_escape(QKeySequence(Qt::Key_Escape), &m_window) {
        m_window.resize(200, 100);
        m_button = new Button;
        m_button->setParent(&m_window);
        m_button->setGeometry(40, 40, 60, 30);
        m_button->setAction(ActionCounter::first, &m_target);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field.setFocus();
    }

    void press() { QTest::mousePress(m_button, Qt::LeftButton, {}, inside()); }

    void move(QPoint position) {
        // Qt's own test moves carry no button.
        QMouseEvent event(QEvent::MouseMove, QPointF(position), m_button->mapToGlobal(QPointF(position)),
                          Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(m_button, &event);
    }

    void release(QPoint position) { QTest::mouseRelease(m_button, Qt::LeftButton, {}, position); }

    QPoint inside() const { return {30, 15}; }

    QPoint outside() const { return {90, 15}; }

    QWidget m_window;
    QLineEdit m_field;
    QShortcut m_escape;
    ActionCounter m_target;
    QPointer<Button> m_button;
};

using Buttons = testing::Types<platform::PushButton, StyledButton, StyledCheckBox, FavouriteCheckBox,
                               BackButton, CornerButton, CursorButton, DarkHighlightButton,
                               PopUpCyclingButton, ToolButton, VantorPushButton>;
TYPED_TEST_SUITE(ButtonInputTest, Buttons);

} // namespace

TYPED_TEST(ButtonInputTest, ClickSendsTheActionOnRelease) {
    this->press();
    EXPECT_TRUE(this->m_button->isDown());
    EXPECT_EQ(this->m_target.count, 0);
    this->release(this->inside());
    EXPECT_FALSE(this->m_button->isDown());
    EXPECT_EQ(this->m_target.count, 1);
    EXPECT_EQ(this->m_target.lastSender, this->m_button.data());
    EXPECT_TRUE(this->m_field.hasFocus()); // a click leaves the keyboard where it is
}

TYPED_TEST(ButtonInputTest, AClickIsOnePress) {
    const std::array<std::pair<const char*, void (QAbstractButton::*)()>, 2> signals{
        {{"pressed", &QAbstractButton::pressed}, {"released", &QAbstractButton::released}}};
    for (const auto& [name, signal] : signals) {
        QSignalSpy spy(this->m_button.data(), signal);
        this->press();
        this->release(this->inside());
        EXPECT_EQ(spy.count(), 1) << name;
    }
}

TYPED_TEST(ButtonInputTest, LeavingAndReleasingOutsideSendsNothing) {
    this->press();
    this->move(this->outside());
    EXPECT_FALSE(this->m_button->isDown());
    this->move(this->inside());
    EXPECT_TRUE(this->m_button->isDown());
    this->move(this->outside());
    this->release(this->outside());
    EXPECT_EQ(this->m_target.count, 0);
    EXPECT_EQ(this->m_button->alphaValue(), 1);
}

TYPED_TEST(ButtonInputTest, EscapeCancelsThePressAndReachesNobodyElse) {
    QSignalSpy shortcut(&this->m_escape, &QShortcut::activated);
    this->press();
    QTest::keyClick(&this->m_window, Qt::Key_Escape);
    EXPECT_FALSE(this->m_button->isDown());
    this->move(this->inside());
    EXPECT_FALSE(this->m_button->isDown());
    this->release(this->inside());
    EXPECT_EQ(this->m_target.count, 0);
    EXPECT_EQ(shortcut.count(), 0);
    QTest::keyClick(&this->m_window, Qt::Key_Escape);
    EXPECT_EQ(shortcut.count(), 1);
}

TYPED_TEST(ButtonInputTest, DisablingCancelsThePress) {
    this->press();
    this->m_button->setEnabled(false);
    this->m_button->setEnabled(true);
    this->move(this->inside());
    EXPECT_FALSE(this->m_button->isDown());
    this->release(this->inside());
    EXPECT_EQ(this->m_target.count, 0);
    EXPECT_EQ(this->m_button->alphaValue(), 1);
}

TYPED_TEST(ButtonInputTest, HidingCancelsThePress) {
    this->press();
    this->m_window.hide();
    EXPECT_FALSE(this->m_button->isDown());
    this->m_window.show();
    this->release(this->inside());
    EXPECT_EQ(this->m_target.count, 0);
    EXPECT_EQ(this->m_button->alphaValue(), 1);
}

TYPED_TEST(ButtonInputTest, MayBeDestroyedWhilePressedAndByItsAction) {
    this->press();
    delete this->m_button.data();
    QTest::keyClick(&this->m_window, Qt::Key_Escape);
    EXPECT_EQ(this->m_target.count, 0);

    auto* const button = new TypeParam;
    button->setParent(&this->m_window);
    button->setGeometry(40, 40, 60, 30);
    button->show();
    this->m_button = button;
    QObject::connect(button, &QAbstractButton::clicked, button, [button] { delete button; });
    this->press();
    this->release(this->inside());
    EXPECT_EQ(this->m_button, nullptr);
}

TYPED_TEST(ButtonInputTest, MayBeDestroyedByItsPress) {
    QObject::connect(this->m_button, &QAbstractButton::pressed, [this] { delete this->m_button.data(); });
    this->press();
    EXPECT_EQ(this->m_button, nullptr);
}

TYPED_TEST(ButtonInputTest, KeyboardPresses) {
    QTest::keyClick(&this->m_field, Qt::Key_Tab);
    ASSERT_TRUE(this->m_button->hasFocus());
    QTest::keyPress(this->m_button, Qt::Key_Space);
    EXPECT_TRUE(this->m_button->isDown());
    QTest::keyRelease(this->m_button, Qt::Key_Space);
    EXPECT_EQ(this->m_target.count, 1);
    QTest::keyClick(this->m_button, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->m_target.count == 2; }));
}

TYPED_TEST(ButtonInputTest, DisablingAndHidingCancelWhatTheKeyboardHasPressed) {
    QSignalSpy clicks(this->m_button.data(), &QAbstractButton::clicked);
    for (const bool hides : {false, true}) {
        this->m_button->setFocus();
        QTest::keyClick(this->m_button, Qt::Key_Return);
        hides ? this->m_button->hide() : this->m_button->setEnabled(false);
        QTest::qWait(150);
        this->m_button->setEnabled(true);
        this->m_button->show();
        EXPECT_FALSE(this->m_button->isDown());
        EXPECT_EQ(clicks.count(), 0) << hides;
        EXPECT_EQ(this->m_target.count, 0);
    }
    QTest::keyClick(this->m_button, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return this->m_target.count == 1; })) << "and then it works again";
}

TYPED_TEST(ButtonInputTest, TouchPresses) {
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    const auto finger = [&] { return QTest::touchEvent(&this->m_window, screen.get()); };
    const QPoint onButton = this->m_button->mapTo(&this->m_window, this->inside());
    finger().press(0, onButton);
    finger().release(0, onButton);
    EXPECT_EQ(this->m_target.count, 1);
    finger().press(0, onButton);
    finger().move(0, onButton + QPoint(90, 0));
    finger().release(0, onButton + QPoint(90, 0));
    EXPECT_EQ(this->m_target.count, 1);
}

TYPED_TEST(ButtonInputTest, DisabledButtonsIgnoreEverything) {
    this->m_button->setEnabled(false);
    QTest::mouseClick(this->m_button, Qt::LeftButton, {}, this->inside());
    QTest::keyClick(this->m_button, Qt::Key_Space);
    this->m_button->click();
    EXPECT_EQ(this->m_target.count, 0);
}
