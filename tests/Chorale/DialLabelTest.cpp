#include "Chorale/DialLabel.h"
#include "tests/Chorale/HostWatch.h"
#include "tests/support/Pixels.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using chorale::DialLabel;
using platform::AudioUnitParameterUnit;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A label in a window with another place for the keyboard.
class DialLabelTest : public testing::Test {
protected:
    DialLabelTest() {
        m_window.resize(300, 200);
        m_other.setGeometry(200, 150, 80, 24);
    }

    DialLabel& show(HostWatch& host, int decimalPlaces, bool showsSuffix = true) {
        m_label = new DialLabel(
            host.parameter, Qt::gray, Qt::black, 12, 16, 16, 60, showsSuffix, true, decimalPlaces,
            [this] { ++m_ends; }, &m_window);
        m_label->setGeometry({{20, 20}, m_label->sizeHint()});
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        return *m_label;
    }

    void type(const char* text, Qt::Key end = Qt::Key_Return) {
        QTest::mouseClick(m_label, Qt::LeftButton);
        ASSERT_TRUE(m_label->isEditing());
        QTest::keyClicks(field(), QString::fromLatin1(text));
        QTest::keyClick(field(), end);
    }

    QLineEdit* field() { return m_label->findChild<QLineEdit*>(); }

    QWidget m_window;
    QLineEdit m_other{&m_window};
    DialLabel* m_label = nullptr;
    int m_ends = 0;
};

} // namespace

TEST_F(DialLabelTest, TypingWritesOneClampedValueWithoutAGesture) {
    HostWatch host;
    const DialLabel& label = show(host, 0);
    type("42");
    EXPECT_FALSE(label.isEditing());
    EXPECT_THAT(host.take(), ElementsAre("value 42"));
    type("500");
    EXPECT_THAT(host.take(), ElementsAre("value 100"));
    EXPECT_EQ(m_ends, 2);
    EXPECT_EQ(label.valueString(), QStringLiteral("100"));
}

TEST_F(DialLabelTest, WhatIsNoNumberWritesNothingButEndsTheEdit) {
    HostWatch host;
    show(host, 1);
    for (const char* const text : {"loud", " 7", "7 ", "7dB", "7,5"}) {
        type(text);
        EXPECT_THAT(host.take(), IsEmpty()) << text;
        EXPECT_EQ(m_label->valueString(), QStringLiteral("5.0"));
    }
    EXPECT_EQ(m_ends, 5);
}

TEST_F(DialLabelTest, EscapeRestoresAndLosingTheKeyboardIsSilent) {
    HostWatch host;
    show(host, 0);
    type("42", Qt::Key_Escape);
    EXPECT_FALSE(m_label->isEditing());
    EXPECT_EQ(m_label->valueString(), QStringLiteral("5"));
    EXPECT_EQ(m_ends, 1);

    QTest::mouseClick(m_label, Qt::LeftButton);
    QTest::keyClicks(field(), QStringLiteral("42"));
    m_other.setFocus();
    EXPECT_FALSE(m_label->isEditing());
    QTest::mouseClick(m_label, Qt::LeftButton);
    QTest::mouseClick(&m_window, Qt::LeftButton, {}, {5, 190});
    EXPECT_FALSE(m_label->isEditing()) << "a click elsewhere, though nothing there takes the keyboard";
    QTest::mouseClick(m_label, Qt::LeftButton);
    QTest::keyClicks(field(), QStringLiteral("42"));
    QWidget window;
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_FALSE(m_label->isEditing()) << "a value that is not in force";
    EXPECT_EQ(m_ends, 1);
    EXPECT_THAT(host.take(), IsEmpty());
}

TEST_F(DialLabelTest, TheHostsChangeOverwritesWhatIsTyped) {
    HostWatch host;
    show(host, 0);
    QTest::mouseClick(m_label, Qt::LeftButton);
    QTest::keyClicks(field(), QStringLiteral("42"));
    host.send(7);
    EXPECT_EQ(m_label->valueString(), QStringLiteral("7"));
    EXPECT_TRUE(m_label->isEditing());
}

TEST_F(DialLabelTest, KeysOpenTheFieldAndOthersReachTheHost) {
    HostWatch host;
    show(host, 0);
    m_label->setFocus();
    const auto isLeft = [&](Qt::Key key) {
        QKeyEvent event(QEvent::KeyPress, key, {});
        QApplication::sendEvent(m_label, &event);
        return !event.isAccepted();
    };
    EXPECT_TRUE(isLeft(Qt::Key_Space));
    EXPECT_TRUE(isLeft(Qt::Key_R));
    EXPECT_FALSE(isLeft(Qt::Key_F2));
    EXPECT_TRUE(m_label->isEditing());
    EXPECT_TRUE(field()->hasFocus());
}

TEST_F(DialLabelTest, TheKeyboardGoesBackToWhereItWas) {
    HostWatch host;
    show(host, 0);
    m_window.setFocus();
    m_other.clearFocus();
    type("42");
    EXPECT_EQ(QApplication::focusWidget(), nullptr) << "to no other control";
    m_label->setFocus();
    type("43");
    EXPECT_TRUE(m_label->hasFocus());
}

TEST_F(DialLabelTest, LooksAndSizeFollowWhatIsShown) {
    HostWatch host(AudioUnitParameterUnit::decibels);
    const DialLabel& label = show(host, 1);
    const QSize size = label.sizeHint();
    const QImage shown = picture(*m_label);
    host.send(100);
    EXPECT_GT(difference(shown, picture(*m_label)), 100);
    EXPECT_EQ(label.sizeHint(), size) << "nothing moves while the value changes";
}

TEST_F(DialLabelTest, ItsCallbackMayDestroyIt) {
    HostWatch host;
    for (const Qt::Key end : {Qt::Key_Return, Qt::Key_Escape}) {
        QPointer<DialLabel> label;
        const std::vector<int> kept(1000, 7); // goes with the callback
        int sum = 0;
        label = new DialLabel(
            host.parameter, Qt::gray, Qt::black, 12, 16, 16, 60, true, true, 0,
            [&label, &sum, kept] {
                delete label;
                for (const int one : kept)
                    sum += one;
            },
            &m_window);
        m_label = label;
        m_window.show();
        m_label->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
        type("42", end);
        EXPECT_EQ(label, nullptr);
        EXPECT_EQ(sum, 7000);
    }
}

TEST_F(DialLabelTest, AssistiveTechnologyReadsAndStepsTheValue) {
    HostWatch host(AudioUnitParameterUnit::decibels);
    show(host, 1).setLocale(QLocale::c());
    auto* const interface = QAccessible::queryAccessibleInterface(m_label);
    EXPECT_EQ(interface->text(QAccessible::Name), QStringLiteral("Level value")) << "the dial is the level";
    EXPECT_EQ(interface->text(QAccessible::Value), QStringLiteral("5.0 dB"));
    EXPECT_EQ(interface->text(QAccessible::Description), QStringLiteral("5.0 dB"))
        << "all that its bus knows";
    interface->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    EXPECT_THAT(host.take(), ElementsAre("touch 5", "value 5.5", "release 5.5"));
    EXPECT_EQ(interface->valueInterface()->maximumValue(), 100.0F);
}
