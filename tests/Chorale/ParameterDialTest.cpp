#include "Chorale/ParameterDial.h"
#include "tests/Chorale/HostWatch.h"
#include "tests/support/EventCounter.h"

#include <QAccessible>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

using chorale::ParameterDial;
using platform::AudioUnitParameterUnit;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ParameterDialTest : public testing::Test {
protected:
    ParameterDial& show(HostWatch& host) {
        m_dial = std::make_unique<ParameterDial>(host.parameter, 60, Qt::blue);
        m_dial->resize(60, 60);
        m_dial->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_dial.get()));
        return *m_dial;
    }

    void press(QPoint position = {30, 30}) { QTest::mousePress(m_dial.get(), Qt::LeftButton, {}, position); }

    void move(QPoint position, Qt::KeyboardModifiers modifiers = {}) {
        QMouseEvent event(QEvent::MouseMove, QPointF(position), m_dial->mapToGlobal(QPointF(position)),
                          Qt::NoButton, Qt::LeftButton, modifiers);
        QApplication::sendEvent(m_dial.get(), &event);
    }

    void release() { QTest::mouseRelease(m_dial.get(), Qt::LeftButton); }

    void wheel(int eighths, Qt::KeyboardModifiers modifiers = {}) {
        QWheelEvent event({30, 30}, {30, 30}, {}, {0, eighths}, {}, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_dial.get(), &event);
    }

    std::unique_ptr<ParameterDial> m_dial;
};

} // namespace

TEST_F(ParameterDialTest, ADragIsOneGesture) {
    HostWatch host;
    show(host);
    press();
    EXPECT_TRUE(host.parameter->isBeingInteractivelyEdited());
    move({30, 10}); // a tenth of the way
    move({30, -10});
    release();
    EXPECT_THAT(host.take(), ElementsAre("touch 5", "value 15", "value 25", "release 25"));
    EXPECT_FALSE(host.parameter->isBeingInteractivelyEdited());
}

TEST_F(ParameterDialTest, ShiftIsFineAndEndsAreEnds) {
    HostWatch host;
    show(host);
    press();
    move({30, 10}, Qt::ShiftModifier);
    EXPECT_THAT(host.take(), ElementsAre("touch 5", "value 6"));
    move({30, -2000});
    move({30, -1980});
    EXPECT_THAT(host.take(), ElementsAre("value 100", "value 90"));
}

TEST_F(ParameterDialTest, EscapeTakesTheDragBackAndDestructionLetsGo) {
    HostWatch host;
    show(host);
    press();
    move({30, 10});
    QTest::keyClick(m_dial.get(), Qt::Key_Escape);
    EXPECT_THAT(host.take(), ElementsAre("touch 5", "value 15", "value 5", "release 5"));
    move({30, -10});
    release();
    EXPECT_THAT(host.take(), IsEmpty());
    press();
    move({30, 10});
    m_dial->hide();
    EXPECT_THAT(host.take(), ElementsAre("touch 5", "value 15", "release 15")) << "only Escape takes it back";
    m_dial->show();
    press();
    m_dial.reset();
    EXPECT_THAT(host.take(), ElementsAre("touch 15", "release 15"));
    EXPECT_FALSE(host.parameter->isBeingInteractivelyEdited());
}

TEST_F(ParameterDialTest, DragsInACircle) {
    HostWatch host;
    show(host).setDragMode(ParameterDial::DragMode::circular);
    press({30, 0});
    move({60, 30}); // a quarter of a circle is a third of the range
    release();
    HostWatch::turn();
    EXPECT_NEAR(host.parameter->value(), 38.3, 0.2);
}

TEST_F(ParameterDialTest, DoubleClickAndClicksWithAltOrControlReset) {
    HostWatch host;
    show(host);
    for (const auto modifier : {Qt::AltModifier, Qt::ControlModifier}) {
        host.send(50);
        QTest::mouseClick(m_dial.get(), Qt::LeftButton, modifier);
        EXPECT_THAT(host.take(), ElementsAre("touch 50", "value 5", "release 5"));
    }
    host.send(50);
    QTest::mouseDClick(m_dial.get(), Qt::LeftButton);
    host.take();
    EXPECT_EQ(host.parameter->value(), 5);
}

TEST_F(ParameterDialTest, WheelStepsAndCollectsPartsOfANotch) {
    HostWatch host;
    show(host);
    wheel(120);
    EXPECT_THAT(host.take(), ElementsAre("touch 5", "value 6", "release 6"));
    HostWatch names(AudioUnitParameterUnit::indexed, 2, 0,
                    QStringList{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    show(names);
    wheel(60);
    EXPECT_THAT(names.take(), IsEmpty());
    wheel(60);
    EXPECT_EQ(names.take(), (std::vector<std::string>{"touch 0", "value 1", "release 1"}));
    EXPECT_EQ(m_dial->valueText(), QStringLiteral("B"));
}

TEST_F(ParameterDialTest, WholeNumbersGoByOneThoughTheHostEchoesThem) {
    HostWatch host(AudioUnitParameterUnit::relativeSemiTones, 24, -5, {}, -24);
    host.echo = [](float value) { return std::round(value); };
    show(host).setDecimalPlaces(0);
    const auto valueAfter = [&](int count, const std::function<void()>& act) {
        for (int i = 0; i < count; ++i) {
            act();
            HostWatch::turn();
        }
        return host.parameter->value();
    };
    EXPECT_EQ(valueAfter(10, [&] { wheel(120); }), 5);
    EXPECT_EQ(valueAfter(20, [&] { wheel(30); }), 10) << "quarters of a notch";
    EXPECT_EQ(valueAfter(10, [&] { QTest::keyClick(m_dial.get(), Qt::Key_Down); }), 0);
    host.take();
    press();
    for (int y = 30; y < 50; ++y)
        move({30, y});
    release();
    EXPECT_EQ(host.take().back(), "release -5") << "a tenth of the range, and only whole numbers";
}

TEST_F(ParameterDialTest, FrequenciesTurnAndStepByRatios) {
    HostWatch host(AudioUnitParameterUnit::hertz, 20480, 640, {}, 20); // ten octaves, in their middle
    show(host).setDecimalPlaces(0);
    press();
    move({30, 10}); // a tenth of the way
    release();
    EXPECT_THAT(host.take(), ElementsAre("touch 640", "value 1280", "release 1280"));
    wheel(120);
    EXPECT_EQ(host.take()[1], "value 1356") << "a semitone";
    wheel(-120);
    EXPECT_EQ(host.take()[1], "value 1280");
}

TEST_F(ParameterDialTest, KeysStepInOneGestureAndOthersReachTheHost) {
    HostWatch host;
    show(host);
    QTest::keyPress(m_dial.get(), Qt::Key_Up);
    QTest::keyPress(m_dial.get(), Qt::Key_Up); // repeated by the keyboard
    QTest::keyRelease(m_dial.get(), Qt::Key_Up);
    EXPECT_THAT(host.take(), ElementsAre("touch 5", "value 6", "value 7", "release 7"));
    QTest::keyClick(m_dial.get(), Qt::Key_End);
    QTest::keyClick(m_dial.get(), Qt::Key_PageDown);
    host.take();
    EXPECT_EQ(host.parameter->value(), 90);
    QTest::keyClick(m_dial.get(), Qt::Key_Delete);
    host.take();
    EXPECT_EQ(host.parameter->value(), 5);
    QKeyEvent space(QEvent::KeyPress, Qt::Key_Space, {});
    QApplication::sendEvent(m_dial.get(), &space);
    EXPECT_FALSE(space.isAccepted());
}

TEST_F(ParameterDialTest, FollowsTheHostOnScreenAndForAssistiveTechnology) {
    HostWatch host(AudioUnitParameterUnit::hertz, 2000, 440, {}, 20);
    ParameterDial& dial = show(host);
    dial.setDecimalPlaces(0);
    EventCounter paints(dial, QEvent::Paint);
    QTRY_COMPARE(paints.count, 0);
    host.send(880);
    EXPECT_TRUE(QTest::qWaitFor([&] { return paints.count > 0; }));
    auto* const interface = QAccessible::queryAccessibleInterface(&dial);
    EXPECT_EQ(interface->text(QAccessible::Name), QStringLiteral("Level"));
    EXPECT_EQ(interface->text(QAccessible::Description), QStringLiteral("880 Hz"));
    ASSERT_NE(interface->valueInterface(), nullptr);
    EXPECT_EQ(interface->valueInterface()->currentValue(), 880.F);
}

TEST_F(ParameterDialTest, ACoarseHostsEchoesLeaveUnfinishedStepsAlone) {
    HostWatch host;
    host.echo = [](float value) { return std::round(value / 4) * 4; };
    show(host).setDecimalPlaces(0);
    for (int i = 0; i < 20; ++i) {
        wheel(120);
        HostWatch::turn();
    }
    EXPECT_EQ(host.take().back(), "release 25");
}

TEST_F(ParameterDialTest, AWheelSendsWhatTheLabelShows) {
    HostWatch host(AudioUnitParameterUnit::percent, 200, 101.4F);
    show(host).setDecimalPlaces(0);
    wheel(120);
    EXPECT_THAT(host.take(), ElementsAre("touch 101.4", "value 102", "release 102"));
    for (int i = 0; i < 10; ++i)
        wheel(120, Qt::ShiftModifier);
    EXPECT_THAT(host.take(), ElementsAre("touch 102", "value 103", "release 103")) << "ten fine steps";
}
