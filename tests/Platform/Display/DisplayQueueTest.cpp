#include "Platform/Display/DisplayQueue.h"
#include "tests/Platform/Display/RecordingTarget.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

using platform::DisplayQueue;
using platform::RealtimeScope;
using testing::ElementsAre;
using testing::Pair;

namespace {

class DisplayQueueTest : public testing::Test {
protected:
    /// Shows all that the producers send; `running` of them have not ended.
    void drainWhile(const std::atomic<int>& running, std::vector<std::thread>& producers) {
        while (running > 0) {
            m_queue.drain();
            m_queue.letGo();
        }
        for (auto& producer : producers)
            producer.join();
        m_queue.drain();
    }

    std::shared_ptr<RecordingTarget> target() { return std::make_shared<RecordingTarget>(m_queue); }

    DisplayQueue m_queue{4};
};

} // namespace

TEST_F(DisplayQueueTest, ShowsInOrderWhatWasSentBeforeTheTurn) {
    const auto a = target();
    const auto b = target();
    std::string order;
    a->whenShown = [&] {
        order += 'a';
        b->send(0, 9);
    };
    b->whenShown = [&] { order += 'b'; };
    b->send(0, 1);
    a->send(1, 2);
    m_queue.drain();
    EXPECT_EQ(order, "ba") << "what is sent during a turn waits for the next";
    m_queue.drain();
    EXPECT_EQ(order, "bab");
    EXPECT_THAT(a->shown, ElementsAre(Pair(1, 2)));
    EXPECT_TRUE(m_queue.isEmpty());
}

TEST_F(DisplayQueueTest, FullQueueKeepsTheLastValueOfEachSourceBehindTheRest) {
    const auto early = target();
    const auto late = target();
    for (int i = 0; i < 4; ++i)
        early->send(0, float(i));
    late->send(1, 10);
    late->send(0, 11);
    late->send(1, 12);
    early->send(0, 13);
    std::vector<float> order;
    early->whenShown = [&] { order.push_back(early->shown.back().second); };
    late->whenShown = [&] { order.push_back(late->shown.back().second); };
    m_queue.drain();
    EXPECT_THAT(order, ElementsAre(0, 1, 2, 3, 11, 12, 13));
    EXPECT_THAT(late->shown, ElementsAre(Pair(0, 11), Pair(1, 12)));
}

TEST_F(DisplayQueueTest, KeptValueNeverFollowsANewerOne) {
    const auto filler = target();
    const auto level = target();
    filler->whenShown = [&, first = true]() mutable {
        if (std::exchange(first, false)) // There is room again, before what was kept is shown.
            level->send(0, 2);
    };
    for (int i = 0; i < 4; ++i)
        filler->send(0, float(i));
    level->send(0, 1);
    m_queue.drain();
    m_queue.drain();
    EXPECT_EQ(level->shown.back().second, 2);

    // And the other way round: the newer one is kept, the older one is still in the queue.
    level->shown.clear();
    filler->whenShown = [&, first = true]() mutable {
        if (!std::exchange(first, false))
            return;
        level->send(0, 3);
        level->send(0, 4);
    };
    for (int i = 0; i < 4; ++i)
        filler->send(0, float(i));
    m_queue.drain();
    m_queue.drain();
    EXPECT_EQ(level->shown.back().second, 4);
}

TEST_F(DisplayQueueTest, KeptValueOfTheHostNeverFollowsANewerOneOfTheUser) {
    const auto filler = target();
    const auto level = target();
    // The first finds the queue full and is shown behind it, the second finds a place in it.
    const auto sendTwo = [&](std::size_t firstSource, std::size_t secondSource) {
        filler->whenShown = [&, shows = 0]() mutable {
            ++shows;
            if (shows == 1) {
                filler->send(0, 9);
                level->send(firstSource, 1);
            } else if (shows == 2) {
                level->send(secondSource, 2);
            }
        };
        level->shown.clear();
        for (int i = 0; i < 4; ++i)
            filler->send(0, float(i));
        m_queue.drain();
        m_queue.drain();
    };
    sendTwo(0, 1);
    EXPECT_THAT(level->shown, ElementsAre(Pair(1, 2)));
    // While the user holds the parameter the host's values are not shown, so they cannot stand for the
    // user's.
    sendTwo(1, 0);
    EXPECT_THAT(level->shown, testing::Contains(Pair(1, 1)));
}

TEST_F(DisplayQueueTest, OrdinaryThreadsWakeOncePerTurnAndAudioThreadsNever) {
    const auto level = target();
    onAudioThread([&] {
        const RealtimeScope nested;
        level->send(0, 1);
    });
    EXPECT_FALSE(isSignalled(m_queue));
    EXPECT_FALSE(m_queue.isEmpty());
    EXPECT_FALSE(RealtimeScope::isActive());

    level->send(0, 2);
    EXPECT_TRUE(isSignalled(m_queue));
    eventfd_t signals = 0;
    level->send(0, 3);
    eventfd_read(m_queue.wakeUp().descriptor(), &signals);
    EXPECT_EQ(signals, 1U);
    m_queue.drain();
    EXPECT_FALSE(isSignalled(m_queue));
    level->send(0, 4);
    EXPECT_TRUE(isSignalled(m_queue)) << "a new turn, a new signal";
}

TEST_F(DisplayQueueTest, TargetLivesUntilItsValuesHaveBeenShown) {
    auto level = target();
    const std::weak_ptr<RecordingTarget> watched = level;
    for (int i = 0; i < 6; ++i)
        level->send(0, float(i)); // The last two are kept outside the queue.
    level.reset();
    ASSERT_FALSE(watched.expired());
    EXPECT_EQ(m_queue.targets(), 1);
    m_queue.drain();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(m_queue.targets(), 0);
}

TEST_F(DisplayQueueTest, TargetWithAnotherOwnerIsLetGoOfBeforeTheLoopSleeps) {
    auto level = target();
    const std::weak_ptr<RecordingTarget> watched = level;
    level->send(0, 1);
    m_queue.letGo();
    m_queue.drain();
    EXPECT_EQ(level->shown.size(), 1U) << "it was let go of before its value was shown";
    level->send(0, 2);
    m_queue.drain();
    level.reset();
    m_queue.letGo();
    EXPECT_TRUE(watched.expired());

    level = target();
    const std::weak_ptr<RecordingTarget> again = level;
    level->send(0, 1);
    m_queue.drain();
    level->send(0, 2);
    m_queue.letGo();
    level.reset();
    m_queue.letGo();
    ASSERT_FALSE(again.expired()) << "a value is on its way";
    m_queue.drain();
    m_queue.letGo();
    EXPECT_TRUE(again.expired());
}

TEST_F(DisplayQueueTest, TargetOutlivesItsSlotThatTurnsTheLoop) {
    auto level = target();
    const std::weak_ptr<RecordingTarget> watched = level;
    std::vector<bool> isGone;
    level->whenShown = [&] {
        level.reset();
        m_queue.drain();
        m_queue.letGo();
        isGone.push_back(watched.expired());
    };
    level->send(0, 1);
    level->send(1, 2);
    m_queue.drain();
    EXPECT_THAT(isGone, ElementsAre(false, false));
    EXPECT_TRUE(watched.expired());
}

TEST_F(DisplayQueueTest, QueueThatGoesAwayLetsGoOfItsTargets) {
    std::vector<std::weak_ptr<RecordingTarget>> watched;
    {
        DisplayQueue queue(2);
        const auto shown = std::make_shared<RecordingTarget>(queue);
        shown->send(0, 1);
        queue.drain();
        const auto level = std::make_shared<RecordingTarget>(queue);
        watched = {shown, level};
        level->send(0, 1);
        queue.letGo(); // It holds the first until the second has been shown.
        for (int i = 0; i < 4; ++i)
            level->send(0, 1);
    }
    for (const auto& target : watched)
        EXPECT_TRUE(target.expired());
}

TEST_F(DisplayQueueTest, TargetWithoutAnOwnerIsAnError) {
    RecordingTarget level(m_queue);
    EXPECT_DEATH(level.send(0, 1), "^A parameter must be owned by a shared pointer\n$");
}

// Several threads against a queue that is far too small: the last value of every source of every thread must
// arrive, in the order of its thread, however the turns fall.
TEST_F(DisplayQueueTest, LastValuesSurviveAFlood) {
    constexpr int threads = 4;
    constexpr int changes = 20'000;
    std::vector<std::shared_ptr<RecordingTarget>> targets;
    for (int i = 0; i < threads; ++i)
        targets.push_back(target());
    std::atomic<int> running = threads;
    std::vector<std::thread> producers;
    for (const auto& level : targets)
        producers.emplace_back([&running, level, isAudio = level == targets[0]] {
            std::optional<RealtimeScope> scope;
            if (isAudio)
                scope.emplace();
            for (int i = 1; i <= changes; ++i)
                level->send(std::size_t(i) % 2, float(i));
            --running;
        });
    drainWhile(running, producers);
    for (const auto& level : targets) {
        std::array<float, 2> last{};
        for (const auto& [source, value] : level->shown) {
            EXPECT_GT(value, last[source]);
            last[source] = value;
        }
        EXPECT_THAT(last, ElementsAre(changes, changes - 1));
    }
    EXPECT_TRUE(m_queue.isEmpty());
}

// Parameters that come and go while values are on the way, and a main thread that lets go all the time.
TEST_F(DisplayQueueTest, TargetsOfOtherThreadsDieOnceShown) {
    constexpr int threads = 2;
    constexpr int generations = 5'000;
    std::atomic<int> running = threads;
    std::atomic<int> shown = 0;
    std::vector<std::thread> producers;
    for (int i = 0; i < threads; ++i)
        producers.emplace_back([&] {
            const RealtimeScope scope;
            for (int generation = 0; generation < generations; ++generation) {
                const auto level = target();
                level->whenShown = [&shown, level = level.get()] { shown += level->shown.size() == 1; };
                level->send(0, 1);
                level->send(1, 2);
            }
            --running;
        });
    drainWhile(running, producers);
    m_queue.letGo();
    EXPECT_EQ(shown, threads * generations);
    EXPECT_EQ(m_queue.targets(), 0);
}

// One target that several threads change: nobody waits for anybody, and nothing is shown twice.
TEST_F(DisplayQueueTest, ThreadsMayShareATarget) {
    constexpr int changes = 20'000;
    const auto level = target();
    std::atomic<int> running = 3;
    std::vector<std::thread> producers;
    for (int i = 0; i < 3; ++i)
        producers.emplace_back([&, i] {
            for (int change = 0; change < changes; ++change)
                level->send(0, float(3 * change + i));
            --running;
        });
    while (running > 0)
        m_queue.drain();
    for (auto& producer : producers)
        producer.join();
    m_queue.drain();
    std::vector<float> values;
    for (const auto& [source, value] : level->shown)
        values.push_back(value);
    std::sort(values.begin(), values.end());
    EXPECT_EQ(std::adjacent_find(values.begin(), values.end()), values.end());
    EXPECT_GE(level->shown.back().second, 3.F * (changes - 1)) << "somebody's last value is the last one";
}

// The last value of every burst must wake whoever waits for the descriptor, however the turns fall.
TEST_F(DisplayQueueTest, NoSignalIsLost) {
    constexpr int changes = 200'000;
    constexpr int burst = 50;
    const auto level = target();
    std::atomic<int> seen = 0;
    std::thread sender([&] {
        for (int i = 1; i <= changes; ++i) {
            level->send(0, float(i));
            while (i % burst == 0 && seen < i)
                std::this_thread::yield();
        }
    });
    constexpr int patience = 2'000; // milliseconds
    bool isLost = false;
    while (seen < changes) {
        pollfd state{.fd = m_queue.wakeUp().descriptor(), .events = POLLIN, .revents = 0};
        isLost = isLost || poll(&state, 1, patience) != 1;
        m_queue.answer();
        if (!level->shown.empty())
            seen = static_cast<int>(level->shown.back().second);
    }
    sender.join();
    EXPECT_FALSE(isLost);
}
