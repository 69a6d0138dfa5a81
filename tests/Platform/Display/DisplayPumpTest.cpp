#include "Platform/Display/DisplayPump.h"
#include "tests/Platform/Display/RecordingTarget.h"

#include <QElapsedTimer>
#include <QTest>
#include <QWidget>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/eventfd.h>

#include <chrono>
#include <memory>

using platform::DisplayPump;
using platform::DisplayQueue;
using platform::ParameterVisibility;
using platform::RealtimeScope;
using testing::ElementsAre;
using testing::Pair;

namespace {

class DisplayPumpTest : public testing::Test {
protected:
    std::shared_ptr<RecordingTarget> target() { return std::make_shared<RecordingTarget>(m_queue); }

    DisplayQueue m_queue{4};
};

} // namespace

TEST_F(DisplayPumpTest, ShowsWhatOrdinaryThreadsSendAtOnce) {
    DisplayPump pump(m_queue);
    const auto level = target();
    pump.start();
    std::thread([&] { level->send(0, 1); }).join();
    QCoreApplication::processEvents();
    EXPECT_THAT(level->shown, ElementsAre(Pair(0, 1)));
}

TEST_F(DisplayPumpTest, TakesALateSignalBack) {
    DisplayPump pump(m_queue);
    // As of a thread that was held up before its signal, while its value has long been shown.
    eventfd_write(m_queue.wakeUp().descriptor(), 1);
    QCoreApplication::processEvents();
    EXPECT_FALSE(isSignalled(m_queue)) << "or the loop would never sleep again";
}

TEST_F(DisplayPumpTest, FindsWhatAnAudioThreadSendsWithinAQuarterOfASecond) {
    DisplayPump pump(m_queue);
    const auto level = target();
    pump.start();
    QTest::qWait(1); // Not because the loop is about to sleep.
    std::thread audio([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
        const RealtimeScope scope;
        level->send(0, 1);
    });
    QElapsedTimer sleep;
    sleep.start();
    int turns = 0;
    while (level->shown.empty() && sleep.elapsed() < 2'000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        ++turns;
    }
    audio.join();
    EXPECT_LE(sleep.elapsed(), 500) << "250 ms, and what a busy machine adds";
    EXPECT_GE(sleep.elapsed(), 30);
    EXPECT_LE(turns, 3) << "nothing may tick while nothing is on screen";
}

TEST_F(DisplayPumpTest, LooksBeforeTheLoopSleeps) {
    DisplayPump pump(m_queue);
    const auto level = target();
    pump.start();
    onAudioThread([&] { level->send(0, 1); });
    QMetaObject::invokeMethod(
        &pump, [] {}, Qt::QueuedConnection);
    QElapsedTimer time;
    time.start();
    while (level->shown.empty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_LT(time.elapsed(), 150) << "it must not have waited for the timer";
}

TEST_F(DisplayPumpTest, SleepsWithoutTargets) {
    DisplayPump pump(m_queue);
    auto level = target();
    pump.start();
    EXPECT_TRUE(pump.isRunning());
    level.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !pump.isRunning(); }, 2'000));
}

TEST(ParameterVisibilityTest, TicksOnlyWhileTheViewIsOnScreen) {
    auto& pump = DisplayPump::shared();
    const auto level = std::make_shared<RecordingTarget>(DisplayQueue::shared());
    pump.start();
    QWidget window;
    QWidget view(&window);
    auto* visibility = new ParameterVisibility(view);
    EXPECT_GE(pump.interval().count(), 100);
    window.show();
    EXPECT_EQ(pump.interval().count(), 16);
    view.hide();
    EXPECT_GE(pump.interval().count(), 100);
    view.show();
    EXPECT_EQ(pump.interval().count(), 16);
    delete visibility;
    EXPECT_GE(pump.interval().count(), 100) << "nothing keeps the tick alive";
}
