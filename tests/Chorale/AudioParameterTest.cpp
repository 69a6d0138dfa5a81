#include "Chorale/AudioParameter.h"

#include "Platform/AudioUnits/HostTime.h"
#include "Platform/Display/DisplayQueue.h"

#include <QCoreApplication>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <thread>

using chorale::AudioParameter;
using chorale::ClosedRange;
using chorale::ParameterEditor;
using chorale::ParameterEditorState;
using platform::AudioUnitParameterUnit;
using platform::AUParameterAutomationEvent;
using platform::AUParameterAutomationEventType;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr auto ui = ParameterEditor::ui;
constexpr auto host = ParameterEditor::parameterObserver;
constexpr auto change = ParameterEditorState::change;
constexpr auto begin = ParameterEditorState::beginInteractive;
constexpr auto end = ParameterEditorState::endInteractive;
constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();

std::shared_ptr<AudioParameter> parameter(AudioUnitParameterUnit units = AudioUnitParameterUnit::generic,
                                          std::optional<QStringList> strings = {},
                                          std::optional<QList<std::uint64_t>> dependents = {}) {
    return std::make_shared<AudioParameter>(7, QStringLiteral("level"), QStringLiteral("Level"), units,
                                            ClosedRange<float>(-10, 100), 5.F, std::move(strings),
                                            std::move(dependents));
}

class AudioParameterTest : public testing::Test {
protected:
    AudioParameterTest() {
        m_level->auParameter()->tokenByAddingParameterAutomationObserver(
            [this](const auto& event) { m_events.push_back(event); });
    }

    std::vector<float> sent() const {
        std::vector<float> values;
        for (const auto& event : m_events)
            values.push_back(event.value);
        return values;
    }

    static void turn() { QCoreApplication::processEvents(); }

    std::shared_ptr<AudioParameter> m_level = parameter();
    QSignalSpy m_changes{m_level.get(), &AudioParameter::valueChanged};
    std::vector<AUParameterAutomationEvent> m_events;
};

} // namespace

TEST_F(AudioParameterTest, TellsTheHostAtOnceAndTheViewsOneTurnLater) {
    const auto before = platform::audioGetCurrentHostTime();
    m_level->setValue(6, ui, change);
    ASSERT_EQ(m_events.size(), 1U);
    EXPECT_EQ(m_events[0].value, 6);
    EXPECT_EQ(m_events[0].address, 7U);
    EXPECT_EQ(m_events[0].eventType, AUParameterAutomationEventType::value);
    EXPECT_GE(m_events[0].hostTime, before);
    EXPECT_LE(m_events[0].hostTime, platform::audioGetCurrentHostTime());
    EXPECT_EQ(m_level->auParameter()->value(), 6);
    EXPECT_EQ(m_level->value(), 5);
    turn();
    EXPECT_EQ(m_level->value(), 6);
    EXPECT_EQ(m_changes.count(), 1);
}

TEST_F(AudioParameterTest, EqualChangeDoesNothingButGesturesAlwaysReachTheHost) {
    m_level->setValue(5, ui, change);
    EXPECT_TRUE(m_events.empty());
    EXPECT_TRUE(platform::DisplayQueue::shared().isEmpty());
    m_level->setValue(5, ui, begin);
    m_level->setValue(5, ui, end);
    ASSERT_EQ(m_events.size(), 2U);
    EXPECT_EQ(m_events[0].eventType, AUParameterAutomationEventType::touch);
    EXPECT_EQ(m_events[1].eventType, AUParameterAutomationEventType::release);
    EXPECT_THAT(sent(), ElementsAre(5, 5));
    turn();
    EXPECT_EQ(m_changes.count(), 0) << "an equal value is nobody's news";
}

TEST_F(AudioParameterTest, ValuesAreClamped) {
    m_level->setValue(1000, ui, change);
    m_level->setValue(-1000, ui, change);
    m_level->setValue(notANumber, ui, begin);
    m_level->setValue(std::numeric_limits<float>::infinity(), ui, change);
    EXPECT_THAT(sent(), ElementsAre(100, -10, -10, 100));
    turn();
    EXPECT_EQ(m_level->value(), 100);
    m_level->setValue(-0.F, ui, change);
    EXPECT_FALSE(std::signbit(sent().back()));
}

TEST_F(AudioParameterTest, PressAndReleaseInOneTurnBothReachTheHost) {
    m_level->setValue(1, ui, change);
    m_level->setValue(1, ui, change);
    m_level->setValue(5, ui, change);
    EXPECT_THAT(sent(), ElementsAre(1, 1, 5)) << "the shown value is still the one to come back to";
    turn();
    EXPECT_EQ(m_level->value(), 5);
}

TEST_F(AudioParameterTest, HostsChangesAreShownAndNotEchoed) {
    std::thread([this] { m_level->setValue(8, host, change); }).join();
    turn();
    EXPECT_EQ(m_level->value(), 8);
    EXPECT_EQ(m_level->shownValue(), 8);
    EXPECT_TRUE(m_events.empty());
    EXPECT_EQ(m_level->auParameter()->value(), 5);
}

TEST_F(AudioParameterTest, OtherThreadsReadWhatIsShownAndWhatWasSetLast) {
    const auto read = [this] { return std::pair(m_level->shownValue(), m_level->latestValue()); };
    m_level->setValue(6, host, change);
    EXPECT_EQ(read(), std::pair(5.F, 6.F));
    turn();
    EXPECT_EQ(read(), std::pair(6.F, 6.F));
    m_level->setValue(7);
    EXPECT_EQ(read(), std::pair(7.F, 7.F));
    m_level->setValue(7, ui, change);
    EXPECT_THAT(sent(), IsEmpty()) << "it is the shown one already";
    m_level->setIsBeingInteractivelyEdited(true);
    m_level->setValue(8, host, change);
    turn();
    EXPECT_EQ(read(), std::pair(7.F, 8.F)) << "dropped for the hand";
}

TEST_F(AudioParameterTest, UsersValueIsShownWhateverTheHostAnswersMeanwhile) {
    float answer = 6;
    m_level->auParameter()->setImplementorValueObserver(
        [&](auto&, float) { m_level->setValue(answer, host, change); });
    m_level->setValue(6, ui, change);
    turn();
    EXPECT_EQ(m_level->value(), 6);
    EXPECT_EQ(m_changes.count(), 1);
    answer = 20;
    m_level->setValue(7, ui, change);
    EXPECT_EQ(m_level->latestValue(), 20);
    turn();
    EXPECT_EQ(m_level->value(), 7);
    EXPECT_EQ(m_changes.count(), 3) << "another value than the user's is shown, before it";
}

TEST_F(AudioParameterTest, UsersGestureWinsOverTheHost) {
    m_level->setIsBeingInteractivelyEdited(true);
    m_level->setValue(8, host, change);
    turn();
    EXPECT_EQ(m_level->value(), 5);
    m_level->setValue(9, ui, change);
    turn();
    EXPECT_EQ(m_level->value(), 9);
    m_level->setValue(8, host, change);
    m_level->setIsBeingInteractivelyEdited(false);
    turn();
    EXPECT_EQ(m_level->value(), 8) << "what counts is whether the gesture lasts when it is shown";
}

TEST_F(AudioParameterTest, ModelMayGoAwayWhileItsValueIsOnTheWay) {
    m_level->auParameter()->setValue(0);
    m_level->setValue(6, ui, change);
    const std::weak_ptr<AudioParameter> watched = m_level;
    m_level.reset();
    EXPECT_FALSE(watched.expired());
    turn();
    EXPECT_TRUE(watched.expired());
    EXPECT_EQ(m_changes.count(), 1);
}
