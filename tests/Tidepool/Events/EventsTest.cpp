#include "Platform/Core/MainThread.h"
#include "Platform/Publishing/PassthroughSubject.h"
#include "Tidepool/Events/DateUtil.h"
#include "Tidepool/Events/DegreeUtil.h"
#include "Tidepool/Events/ReceiveOnMainThread.h"
#include "Tidepool/Events/UIEventThrottler.h"

#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>

using namespace std::chrono_literals;
using namespace tidepool;
using platform::PassthroughSubject;

TEST(ReceiveOnMainThread, DeliversAtOnceThereAndLaterFromElsewhere) {
    const auto subject = std::make_shared<PassthroughSubject<int>>();
    std::vector<int> received;
    const auto token = receiveOnMainThread(subject)->sink([&](int value) {
        EXPECT_TRUE(platform::isMainThread());
        received.push_back(value);
    });
    std::thread([&] {
        for (int i = 1; i <= 100; ++i)
            subject->send(i);
    }).join();
    EXPECT_TRUE(received.empty());
    subject->send(0);
    EXPECT_EQ(received, std::vector{0}) << "before the send returns";
    ASSERT_TRUE(QTest::qWaitFor([&] { return received.size() == 101; }));
    EXPECT_TRUE(std::is_sorted(received.begin(), received.end()));
}

TEST(ReceiveOnMainThread, CancelDropsWhatIsOnItsWay) {
    /// Takes whatever it is given, also after it has cancelled.
    class Recorder : public platform::Subscriber<int> {
    public:
        void receive(std::shared_ptr<platform::Subscription> given) override {
            subscription = std::move(given);
            subscription->request(platform::Demand::unlimited());
        }

        platform::Demand receive(const int&) override {
            ++values;
            return platform::Demand::none();
        }

        void receive(const platform::Completion&) override { ++ends; }

        std::shared_ptr<platform::Subscription> subscription;
        int values = 0;
        int ends = 0;
    };

    const auto subject = std::make_shared<PassthroughSubject<int>>();
    const auto recorder = std::make_shared<Recorder>();
    receiveOnMainThread(subject)->receive(recorder);
    subject->send(1);
    std::thread([&] {
        subject->send(2);
        subject->send(platform::Completion{});
    }).join();
    recorder->subscription->cancel();
    QTest::qWait(20);
    EXPECT_EQ(recorder->values, 1);
    EXPECT_EQ(recorder->ends, 0);
    recorder->subscription.reset(); // which holds the recorder
}

TEST(UIEventThrottler, RunsTheLastOfABurstAndGoesOnUntilCancelled) {
    std::atomic<int> first = 0;
    std::atomic<int> last = 0;
    std::atomic<bool> inBackground = true;
    UIEventThrottler throttler(30ms);
    throttler.throttle([&] { ++first; });
    throttler.throttle([&] { ++first; });
    throttler.throttle([&] {
        inBackground = inBackground && !platform::isMainThread();
        ++last;
    });
    EXPECT_EQ(last, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return last >= 3; })) << "it repeats";
    throttler.cancel();
    QTest::qWait(10);
    const int atCancel = last;
    QTest::qWait(100);
    EXPECT_EQ(last, atCancel);
    EXPECT_EQ(first, 0);
    EXPECT_TRUE(inBackground);
}

TEST(UIEventThrottler, ClosureMayCancelOrRelease) {
    std::atomic<int> runs = 0;
    UIEventThrottler once(5ms);
    once.throttle([&] {
        ++runs;
        once.cancel();
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return runs == 1; }));

    auto released = std::make_unique<UIEventThrottler>(5ms);
    released->throttle([&] {
        released.reset();
        ++runs;
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return runs == 2; }));
    QTest::qWait(50);
    EXPECT_EQ(runs, 2);
}

TEST(UIEventThrottler, LeavesNothingRunningBehind) {
    std::atomic<bool> began = false;
    std::atomic<bool> ended = false;
    auto throttler = std::make_unique<UIEventThrottler>(1ms);
    throttler->throttle([&] {
        began = true;
        std::this_thread::sleep_for(50ms);
        ended = true;
    });
    ASSERT_TRUE(QTest::qWaitFor([&] { return began.load(); }));
    throttler.reset();
    EXPECT_TRUE(ended) << "a closure that runs is waited for";
}

TEST(UIEventThrottlerDeathTest, TheProgramWaitsForAClosureThatHasReleasedItsThrottler) {
    const auto end = [] {
        static std::unique_ptr<UIEventThrottler> released = std::make_unique<UIEventThrottler>(1ms);
        static std::atomic<bool> isReleased = false;
        released->throttle([] {
            released.reset();
            isReleased = true;
            std::this_thread::sleep_for(100ms);
            std::fputs("ended\n", stderr);
        });
        while (!isReleased)
            std::this_thread::sleep_for(1ms);
        std::exit(0); // NOLINT(concurrency-mt-unsafe)
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "ended");
}

TEST(UIEventThrottler, LetsGoOfAClosureThatNoLongerRuns) {
    const auto captured = std::make_shared<int>();
    UIEventThrottler throttler(1h);
    throttler.throttle([captured] {});
    throttler.throttle([captured] {});
    EXPECT_EQ(captured.use_count(), 2);
    throttler.cancel();
    EXPECT_EQ(captured.use_count(), 1);

    // Its own closure is all that keeps this one.
    auto kept = std::make_shared<UIEventThrottler>(1ms);
    const std::weak_ptr observed = kept;
    kept->throttle([kept] { kept->cancel(); });
    kept.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return observed.expired(); }));
}

TEST(DateUtil, CountsTheDistanceInEitherDirection) {
    const auto now = QDateTime::currentDateTimeUtc();
    for (const int seconds : {-10, 10}) {
        EXPECT_TRUE(DateUtil::isOlder(now.addSecs(seconds), 5s, false));
        EXPECT_TRUE(DateUtil::isRecent(now.addSecs(seconds), 15s, false));
    }
    EXPECT_TRUE(DateUtil::isRecent(std::nullopt, 5s, true));
}

TEST(DegreeUtil, NormalizesToOneTurn) {
    for (const auto& [degrees, expected] : std::vector<std::pair<double, double>>{
             {180, 180}, {-180, 180}, {540, 180}, {190, -170}, {-190, 170}, {720, 0}, {-0.5, -0.5}})
        EXPECT_DOUBLE_EQ(DegreeUtil::normalizedDegrees(degrees), expected) << degrees;
}
