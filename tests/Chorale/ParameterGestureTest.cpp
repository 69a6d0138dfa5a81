#include "Chorale/ParameterGesture.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <optional>
#include <string>

using chorale::AudioParameter;
using chorale::ParameterEditor;
using chorale::ParameterEditorState;
using chorale::ParameterGesture;

namespace {

class ParameterGestureTest : public testing::Test {
protected:
    ParameterGestureTest() {
        m_level->auParameter()->tokenByAddingParameterAutomationObserver([this](const auto& event) {
            constexpr const char* names[] = {"=", "[", "]"};
            m_events += names[static_cast<std::size_t>(event.eventType)] + std::to_string(int(event.value));
        });
    }

    std::shared_ptr<AudioParameter> m_level =
        std::make_shared<AudioParameter>(1, QString(), QString(), platform::AudioUnitParameterUnit::generic,
                                         chorale::ClosedRange<float>(0, 9), 4.F);
    std::string m_events;
};

} // namespace

TEST_F(ParameterGestureTest, TouchesAndReleasesOnce) {
    {
        ParameterGesture gesture(m_level);
        EXPECT_TRUE(m_level->isBeingInteractivelyEdited());
        gesture.setValue(6);
        gesture.end();
        EXPECT_FALSE(m_level->isBeingInteractivelyEdited());
        gesture.setValue(7);
        gesture.end();
        gesture.cancel();
    }
    EXPECT_EQ(m_events, "[4=6]6") << "with the value that is set, not the one still shown";
}

TEST_F(ParameterGestureTest, CancelGoesBack) {
    ParameterGesture gesture(m_level);
    gesture.setValue(6);
    gesture.cancel();
    gesture.setValue(8); // a drag that goes on
    EXPECT_EQ(m_events, "[4=6=4]4");
    QCoreApplication::processEvents();
    EXPECT_EQ(m_level->value(), 4);
}

TEST_F(ParameterGestureTest, Nests) {
    auto outer = std::make_optional<ParameterGesture>(m_level);
    outer->setValue(5);
    auto inner = std::make_optional<ParameterGesture>(m_level);
    inner->setValue(6);
    outer.reset();
    EXPECT_TRUE(m_level->isBeingInteractivelyEdited()) << "whichever ends last releases";
    inner->cancel();
    EXPECT_EQ(m_events, "[4=5=6=5]5");
    EXPECT_FALSE(m_level->isBeingInteractivelyEdited());
}

TEST_F(ParameterGestureTest, ReleaseKeepsTheUsersValue) {
    ParameterGesture gesture(m_level);
    gesture.setValue(6);
    m_level->setValue(1, ParameterEditor::parameterObserver, ParameterEditorState::change);
    gesture.end();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_events, "[4=6]6");
    EXPECT_EQ(m_level->value(), 6);
}
