#include "Chorale/ParameterSettings.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Display/DisplayQueue.h"
#include "Platform/Display/RealtimeScope.h"

#include <QCoreApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <limits>
#include <thread>
#include <utility>
#include <vector>

using chorale::AudioParameter;
using chorale::ChoraleAudioUnit;
using chorale::ParameterEditor;
using chorale::ParameterEditorState;
using chorale::ParameterSettings;
using testing::ElementsAre;
using testing::Pair;

namespace {

using Values = std::vector<std::pair<std::uint64_t, float>>;

class RecordingUnit : public ChoraleAudioUnit {
public:
    void applyParameterValue(platform::AUParameterAddress address, float value) override {
        applied.emplace_back(address, value);
    }

    Values applied;
};

class RecordingSettings : public ParameterSettings {
public:
    void updateDependentValues(std::uint64_t forAddress, float value) override {
        updated.emplace_back(forAddress, value);
        if (changing)
            valueAtUpdate = changing->latestValue();
    }

    std::shared_ptr<AudioParameter> changing; // of which the hook looks at the value
    std::optional<float> valueAtUpdate;

    Values updated;
};

std::shared_ptr<AudioParameter> parameter(std::uint64_t address, std::optional<QStringList> names = {},
                                          std::optional<QList<std::uint64_t>> dependents = {}) {
    return std::make_shared<AudioParameter>(
        address, QStringLiteral("p%1").arg(address), QString(), platform::AudioUnitParameterUnit::generic,
        chorale::ClosedRange<float>(0, 100), 5.F, std::move(names), std::move(dependents));
}

class ParameterSettingsTest : public testing::Test {
protected:
    void configure(const QList<std::shared_ptr<AudioParameter>>& parameters) {
        m_settings->setupParameters(parameters);
        m_settings->configureAudioUnit(m_unit);
        m_settings->setupParameterTreeListeners();
        m_unit->applied.clear();
    }

    platform::AUParameter& hostParameter(int index) {
        return *m_unit->parameterTree()->allParameters().at(index);
    }

    static void turn() { QCoreApplication::processEvents(); }

    std::shared_ptr<RecordingUnit> m_unit = std::make_shared<RecordingUnit>();
    std::shared_ptr<RecordingSettings> m_settings = std::make_shared<RecordingSettings>();
};

} // namespace

TEST_F(ParameterSettingsTest, ConfigurationGivesTheUnitItsTreeAndItsValuesInOrder) {
    const auto first = parameter(9);
    const auto second = parameter(2);
    first->setValue(7);
    m_settings->setupParameters({first, second});
    m_settings->configureAudioUnit(m_unit);
    EXPECT_THAT(m_unit->parameterTree()->allParameters(),
                ElementsAre(first->auParameter(), second->auParameter()));
    EXPECT_THAT(m_unit->applied, ElementsAre(Pair(9, 7), Pair(2, 5)));
    hostParameter(0).setValue(1);
    EXPECT_EQ(m_unit->applied.size(), 2U) << "the listeners are installed by a call of their own";
    m_settings->setupParameters({});
    m_settings->configureAudioUnit(m_unit);
    EXPECT_TRUE(m_unit->parameterTree()->allParameters().isEmpty());
}

TEST_F(ParameterSettingsTest, ChangeOnScreenReachesTheUnitAndComesBack) {
    const auto level = parameter(3);
    configure({level});
    level->setValue(500, ParameterEditor::ui, ParameterEditorState::change);
    EXPECT_THAT(m_unit->applied, ElementsAre(Pair(3, 100)));
    turn();
    EXPECT_EQ(level->value(), 100);
}

TEST_F(ParameterSettingsTest, HostsChangeReachesModelHookAndUnitOnTheHostsThread) {
    const auto level = parameter(3, {}, QList<std::uint64_t>{4});
    const auto other = parameter(4);
    configure({level, other});
    m_settings->changing = level;
    std::thread([this] {
        hostParameter(0).setValue(120);
        hostParameter(1).setValue(8);
    }).join();
    EXPECT_THAT(m_settings->updated, ElementsAre(Pair(3, 120))) << "as it came, and only where values follow";
    EXPECT_EQ(m_settings->valueAtUpdate, 100) << "what follows can be worked out from the new value";
    EXPECT_THAT(m_unit->applied, ElementsAre(Pair(3, 120), Pair(4, 8)));
    turn();
    EXPECT_EQ(level->value(), 100);
    EXPECT_EQ(other->value(), 8);
    EXPECT_EQ(level->auParameter()->value(), 120) << "nothing is sent back to the host";
}

TEST_F(ParameterSettingsTest, UnitMayGoAway) {
    m_settings->setupParameterTreeListeners();
    const auto level = parameter(3);
    m_settings->setupParameters({level});
    m_settings->setAudioUnit(m_unit);
    m_settings->setupParameterTreeListeners();
    EXPECT_EQ(m_unit->parameterTree(), nullptr) << "no tree, no listeners";
    const std::weak_ptr<RecordingUnit> watched = std::exchange(m_unit, nullptr);
    EXPECT_TRUE(watched.expired()) << "it is held weakly";
    EXPECT_EQ(m_settings->audioUnit(), nullptr);
    m_settings->setValue(8, 3, ParameterEditor::parameterObserver);
    turn();
    EXPECT_EQ(level->value(), 8);
}

TEST_F(ParameterSettingsTest, SettingsMayGoAway) {
    configure({parameter(3)});
    const std::weak_ptr<RecordingSettings> watched = std::exchange(m_settings, nullptr);
    EXPECT_TRUE(watched.expired());
    hostParameter(0).setValue(8);
    EXPECT_TRUE(m_unit->applied.empty());
}

// For the thread sanitizer: host, audio unit and screen at once, while the audio unit is replaced.
TEST_F(ParameterSettingsTest, ThreadsMayChangeEverythingAtOnce) {
    class CountingUnit : public ChoraleAudioUnit {
    public:
        void applyParameterValue(platform::AUParameterAddress, float) override { ++applied; }

        std::atomic<long> applied = 0;
    };

    const QList<std::shared_ptr<AudioParameter>> parameters{parameter(0), parameter(1), parameter(2)};
    m_settings->setupParameters(parameters);
    auto unit = std::make_shared<CountingUnit>();
    m_settings->configureAudioUnit(unit);
    m_settings->setupParameterTreeListeners();
    constexpr int changes = 5'000;
    std::atomic<int> running = 3;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 3; ++thread)
        threads.emplace_back([&, thread] {
            const platform::RealtimeScope scope;
            for (int i = 1; i <= changes; ++i) {
                const auto& changed = parameters[(i + thread) % 3];
                if (thread == 0)
                    changed->setValue(float(i % 100), ParameterEditor::ui, ParameterEditorState::change);
                else
                    changed->auParameter()->setValue(float(i % 100));
            }
            --running;
        });
    while (running > 0) {
        turn();
        unit = std::make_shared<CountingUnit>();
        m_settings->configureAudioUnit(unit);
        m_settings->setupParameterTreeListeners();
    }
    for (auto& thread : threads)
        thread.join();
    parameters[0]->auParameter()->setValue(42);
    platform::DisplayQueue::shared().drain();
    platform::DisplayQueue::shared().drain();
    EXPECT_EQ(parameters[0]->value(), 42);
    EXPECT_GE(unit->applied, 4) << "the last unit has its initial values, and the last change";
}

TEST_F(ParameterSettingsTest, HostReadsTexts) {
    configure({parameter(1, QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}),
               parameter(2)});
    auto& named = hostParameter(0);
    auto& plain = hostParameter(1);
    EXPECT_EQ(named.string({}), QStringLiteral("-"));
    EXPECT_EQ(named.string(std::numeric_limits<float>::quiet_NaN()), QStringLiteral("-"));
    EXPECT_EQ(named.string(1.7F), QStringLiteral("b"));
    EXPECT_EQ(named.string(-1), QStringLiteral("-1"));
    EXPECT_EQ(plain.string(12.6F), QStringLiteral("13"));
    EXPECT_EQ(plain.string(2.5F), QStringLiteral("2"));
    EXPECT_EQ(plain.string(12'000), QStringLiteral("12000")) << "it must parse back";
}
