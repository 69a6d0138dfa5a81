#include "Tidepool/Buttons/StyledButton.h"
#include "tests/support/ActionCounter.h"
#include "tests/support/EventCounter.h"

#include <QButtonGroup>
#include <QDragEnterEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <map>

using namespace tidepool;

namespace {

/// One button in a window with a shortcut for Escape and a field that has the keyboard.
class ButtonInputTest : public testing::Test {
protected:
    ButtonInputTest() : m_field(&m_window), m_escape(QKeySequence(Qt::Key_Escape), &m_window) {
        m_window.resize(200, 100);
        add(new StyledButton);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field.setFocus();
    }

    void add(platform::PushButton* button) {
        m_button = button;
        button->setParent(&m_window);
        button->setGeometry(40, 40, 60, 30);
        button->setAction(ActionCounter::first, &m_target);
        button->show();
    }

    void press() { QTest::mousePress(m_button, Qt::LeftButton, {}, inside()); }

    void move(QPoint position, Qt::MouseButtons buttons = Qt::LeftButton) {
        // Qt's own test moves carry no button.
        QMouseEvent event(QEvent::MouseMove, QPointF(position), m_button->mapToGlobal(QPointF(position)),
                          Qt::NoButton, buttons, {});
        QApplication::sendEvent(m_button, &event);
    }

    void release(QPoint position) { QTest::mouseRelease(m_button, Qt::LeftButton, {}, position); }

    void click() {
        press();
        release(inside());
    }

    /// Held for a while, as a keyboard repeats it.
    void hold(Qt::Key key) {
        QTest::keyPress(m_button, key);
        for (int i = 0; i < 3; ++i) {
            QTest::qWait(130);
            QKeyEvent repeated(QEvent::KeyPress, key, {}, {}, true);
            QApplication::sendEvent(m_button, &repeated);
        }
        QTest::keyRelease(m_button, key);
        QTest::qWait(130);
    }

    QPoint inside() const { return {30, 15}; }

    QPoint outside() const { return {90, 15}; }

    QWidget m_window;
    QLineEdit m_field;
    QShortcut m_escape;
    ActionCounter m_target;
    QPointer<platform::PushButton> m_button;
};

} // namespace

TEST_F(ButtonInputTest, ClickSendsTheActionOnRelease) {
    QSignalSpy pressed(m_button.data(), &QAbstractButton::pressed);
    QSignalSpy released(m_button.data(), &QAbstractButton::released);
    press();
    EXPECT_TRUE(m_button->isDown());
    EXPECT_EQ(m_target.count, 0);
    release(inside());
    EXPECT_FALSE(m_button->isDown());
    EXPECT_EQ(m_target.count, 1);
    EXPECT_EQ(m_target.lastSender, m_button.data());
    EXPECT_TRUE(m_field.hasFocus()) << "a click leaves the keyboard where it is";
    EXPECT_EQ(pressed.count(), 1);
    EXPECT_EQ(released.count(), 1);
}

TEST_F(ButtonInputTest, APressEndsOnceWithoutAClickAndTheNextOneCounts) {
    QMenu menu;
    menu.addAction(QStringLiteral("Item"));
    const std::map<std::string, std::function<void()>> ends{
        {"Escape", [this] { QTest::keyClick(&m_field, Qt::Key_Escape); }},
        {"disabled",
         [this] {
             m_button->setEnabled(false);
             m_button->setEnabled(true);
         }},
        {"hidden",
         [this] {
             m_window.hide();
             m_window.show();
         }},
        {"a menu that the press opens",
         [&] {
             menu.popup(m_window.mapToGlobal(QPoint(0, 0)));
             QTest::keyClick(&menu, Qt::Key_Escape);
             EXPECT_FALSE(menu.isVisible());
         }},
        {"a drag that the press starts",
         [this] {
             const QMimeData data;
             QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
             QApplication::sendEvent(m_window.windowHandle(), &enter);
         }},
        {"a move of the window, which keeps the release", [this] { move(inside(), Qt::NoButton); }},
    };
    for (const auto& [name, end] : ends) {
        SCOPED_TRACE(name);
        QSignalSpy released(m_button.data(), &QAbstractButton::released);
        m_target.count = 0;
        press();
        end();
        EXPECT_EQ(released.count(), 1);
        move(inside());
        EXPECT_FALSE(m_button->isDown());
        release(inside());
        EXPECT_EQ(m_target.count, 0);
        EXPECT_EQ(released.count(), 1);
        click();
        EXPECT_EQ(m_target.count, 1);
    }
}

TEST_F(ButtonInputTest, APressWhoseReleaseNobodyHeardGivesWayToTheNext) {
    QSignalSpy pressed(m_button.data(), &QAbstractButton::pressed);
    press();
    press();
    EXPECT_EQ(pressed.count(), 2);
    release(inside());
    EXPECT_EQ(m_target.count, 1);
}

TEST_F(ButtonInputTest, ThePointerHoldsTheButtonThoughTheFocusLeavesIt) {
    QSignalSpy released(m_button.data(), &QAbstractButton::released);
    m_button->setFocus();
    press();
    m_field.setFocus();
    EXPECT_TRUE(m_button->isDown());
    release(inside());
    EXPECT_EQ(released.count(), 1);
    EXPECT_EQ(m_target.count, 1);
}

TEST_F(ButtonInputTest, EscapeReachesNobodyElseWhileItEndsAPress) {
    QSignalSpy shortcut(&m_escape, &QShortcut::activated);
    const EventCounter keys(m_field, QEvent::KeyPress);
    press();
    QTest::keyClick(&m_field, Qt::Key_Escape);
    EXPECT_EQ(shortcut.count(), 0);
    EXPECT_EQ(keys.count, 0);
    QTest::keyClick(&m_field, Qt::Key_Escape);
    EXPECT_EQ(shortcut.count(), 1);
}

TEST_F(ButtonInputTest, MayBeDestroyedByItsPressWhilePressedAndByItsAction) {
    press();
    delete m_button.data();
    QTest::keyClick(&m_field, Qt::Key_Escape);
    EXPECT_EQ(m_target.count, 0);
    const auto destroyedBy = [this](void (QAbstractButton::*signal)()) {
        add(new StyledButton);
        QObject::connect(m_button.data(), signal, [this] { delete m_button.data(); });
        press();
        if (m_button)
            QTest::keyClick(&m_field, Qt::Key_Escape);
        return m_button == nullptr;
    };
    EXPECT_TRUE(destroyedBy(&QAbstractButton::pressed));
    EXPECT_TRUE(destroyedBy(&QAbstractButton::released));
    add(new StyledButton);
    QObject::connect(m_button.data(), &QAbstractButton::clicked, [this] { delete m_button.data(); });
    click();
    EXPECT_EQ(m_button, nullptr);
}

TEST_F(ButtonInputTest, KeyboardPressesOnceHoweverLongAKeyIsHeld) {
    QTest::keyClick(&m_field, Qt::Key_Tab);
    ASSERT_TRUE(m_button->hasFocus());
    QTest::keyPress(m_button, Qt::Key_Space);
    EXPECT_TRUE(m_button->isDown());
    QTest::keyRelease(m_button, Qt::Key_Space);
    EXPECT_EQ(m_target.count, 1);
    QTest::keyClick(m_button, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_target.count == 2; }));
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        m_target.count = 0;
        hold(key);
        EXPECT_EQ(m_target.count, 1) << key;
    }
}

TEST_F(ButtonInputTest, DisablingAndHidingCancelWhatTheKeyboardHasPressed) {
    QButtonGroup group;
    group.addButton(m_button);
    QSignalSpy clicks(m_button.data(), &QAbstractButton::clicked);
    QSignalSpy groupClicks(&group, &QButtonGroup::buttonClicked);
    QSignalSpy released(m_button.data(), &QAbstractButton::released);
    for (const bool hides : {false, true}) {
        released.clear();
        m_button->setFocus();
        QTest::keyClick(m_button, Qt::Key_Return);
        hides ? m_button->hide() : m_button->setEnabled(false);
        QTest::qWait(150);
        m_button->setEnabled(true);
        m_button->show();
        EXPECT_FALSE(m_button->isDown());
        EXPECT_EQ(clicks.count(), 0) << hides;
        EXPECT_EQ(groupClicks.count(), 0) << hides;
        EXPECT_EQ(released.count(), 1) << hides;
        EXPECT_EQ(m_target.count, 0);
    }
    QTest::keyClick(m_button, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_target.count == 1; })) << "and then it works again";
    EXPECT_EQ(groupClicks.count(), 1);
}

TEST_F(ButtonInputTest, DisabledButtonsIgnoreEverything) {
    m_button->setEnabled(false);
    QTest::mouseClick(m_button, Qt::LeftButton, {}, inside());
    QTest::keyClick(m_button, Qt::Key_Space);
    m_button->click();
    EXPECT_EQ(m_target.count, 0);
}
