#include "Chorale/ParameterSettings.h"

#include "Platform/Display/DisplayQueue.h"
#include "Platform/Display/RealtimeScope.h"
#include "tests/support/RealtimeWatch.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <unistd.h>

using chorale::AudioParameter;
using chorale::ParameterEditor;
using chorale::ParameterEditorState;
using platform::RealtimeScope;

namespace {

class QuietUnit : public chorale::ChoraleAudioUnit {
public:
    void applyParameterValue(platform::AUParameterAddress, float) override {}
};

struct Findings {
    long allocations = 0;
    long locks = 0;
    long systemCall = RealtimeWatch::noSystemCall;
};

Findings watched(const std::function<void()>& work) {
    RealtimeWatch watch;
    work();
    watch.stop();
    return {watch.allocations(), watch.locks(), watch.systemCall()};
}

class RealtimeTest : public testing::Test {
protected:
    void SetUp() override {
        if (!RealtimeWatch::isSupported())
            GTEST_SKIP() << "this kernel cannot tell of system calls";
        QList<std::shared_ptr<AudioParameter>> parameters;
        for (std::uint64_t address = 0; address < 8; ++address)
            parameters.append(std::make_shared<AudioParameter>(
                address, QString(), QString(), platform::AudioUnitParameterUnit::generic,
                chorale::ClosedRange<float>(0, 1e9F), 0.F, std::nullopt, QList<std::uint64_t>{99}));
        m_parameters = parameters;
        m_settings->setupParameters(parameters);
        m_settings->configureAudioUnit(m_unit);
        m_settings->setupParameterTreeListeners();
        m_unit->parameterTree()->tokenByAddingParameterObserver([](auto, float) {});
    }

    // Every way in: the host's parameter with all that listens there, and both kinds of source.
    void change(int count, float first) const {
        for (int i = 0; i < count; ++i) {
            const auto& parameter = m_parameters[i % m_parameters.size()];
            const float value = first + float(i);
            parameter->auParameter()->setValue(value);
            parameter->setValue(value + 0.5F, ParameterEditor::ui, ParameterEditorState::change);
            parameter->setValue(value, ParameterEditor::parameterObserver, ParameterEditorState::change);
        }
    }

    // On a thread that renders audio.
    Findings findings(int count, float first = 1) const {
        Findings found;
        std::thread([&] {
            const RealtimeScope scope;
            found = watched([&] { change(count, first); });
        }).join();
        return found;
    }

    static void expectNothing(const Findings& found) {
        EXPECT_EQ(found.allocations, 0);
        EXPECT_EQ(found.locks, 0);
        EXPECT_EQ(found.systemCall, RealtimeWatch::noSystemCall);
    }

    std::shared_ptr<QuietUnit> m_unit = std::make_shared<QuietUnit>();
    std::shared_ptr<chorale::ParameterSettings> m_settings = std::make_shared<chorale::ParameterSettings>();
    QList<std::shared_ptr<AudioParameter>> m_parameters;
};

} // namespace

TEST_F(RealtimeTest, WatchSeesWhatItMust) {
    std::mutex mutex;
    const auto memory = watched([] { QString(QStringLiteral("a") + u'b').detach(); });
    EXPECT_GE(memory.allocations, 2);
    EXPECT_EQ(watched([&] { const std::lock_guard lock(mutex); }).locks, 1);
    EXPECT_EQ(watched([] { getppid(); }).systemCall, 110);
    expectNothing(watched([] {}));
    // The way of an ordinary thread, which wakes the main thread by writing to a descriptor.
    EXPECT_NE(watched([this] { change(1, 3); }).systemCall, RealtimeWatch::noSystemCall);
}

TEST_F(RealtimeTest, NothingInTheSteadyState) {
    for (int turn = 0; turn < 20; ++turn) {
        expectNothing(findings(10, float(1 + 100 * turn)));
        QCoreApplication::sendPostedEvents();
        platform::DisplayQueue::shared().drain();
    }
}

TEST_F(RealtimeTest, NothingUnderAFloodThatNobodyDrains) {
    constexpr int changes = 100'000;
    std::thread other([this] { change(changes, 1); });
    expectNothing(findings(changes, 2));
    other.join();
    platform::DisplayQueue::shared().drain();
    platform::DisplayQueue::shared().drain();
    EXPECT_THAT(m_parameters.last()->value(), testing::AnyOf(changes, changes + 1))
        << "and the last value of one of them has arrived";
}

TEST_F(RealtimeTest, NothingWhileTheMainThreadDrains) {
    std::atomic<bool> isDone = false;
    Findings found;
    std::thread audio([&] {
        const RealtimeScope scope;
        found = watched([&] { change(100'000, 1); });
        isDone = true;
    });
    while (!isDone)
        platform::DisplayQueue::shared().drain();
    audio.join();
    expectNothing(found);
}
