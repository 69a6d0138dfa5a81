// What the host hears of the user's changes, and what of the host's is shown.
#include "Plugin/Editor/EditorParameters.h"
#include "Chorale/ParameterGesture.h"

#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

using namespace noteloft::plugin;
using chorale::ParameterEditor;
using chorale::ParameterEditorState;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int echoTime = 500;

class EditorParametersTest : public testing::Test {
protected:
    using Heard = std::vector<std::string>;

    static Heard& heardBy(void* test) { return static_cast<EditorParametersTest*>(test)->m_heard; }

    static void write(LV2UI_Controller test, std::uint32_t port, std::uint32_t, std::uint32_t,
                      const void* value) {
        std::ostringstream message;
        message << port << '=' << *static_cast<const float*>(value);
        heardBy(test).push_back(message.str());
    }

    static void touch(LV2UI_Feature_Handle test, std::uint32_t port, bool isTouched) {
        heardBy(test).push_back((isTouched ? "touch " : "release ") + std::to_string(port));
    }

    /// What the host has heard, once all that is on its way to the screen has arrived.
    Heard take() {
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
        return std::exchange(m_heard, {});
    }

    void set(Ports::Index port, float value) {
        m_parameters.parameter(port)->setValue(value, ParameterEditor::ui, ParameterEditorState::change);
    }

    void receive(Ports::Index port, float value) {
        m_parameters.receive(port, value);
        take();
    }

    float shown(Ports::Index port) { return m_parameters.parameter(port)->value(); }

    std::vector<std::string> m_heard;
    const LV2UI_Touch m_touch{this, touch};
    HostConnection m_host{write, this, &m_touch};
    EditorParameters m_parameters{m_host};
};

} // namespace

TEST_F(EditorParametersTest, AChangeWithoutAGestureHasATouchOfItsOwn) {
    set(Ports::strum, 40);
    EXPECT_THAT(take(), ElementsAre("touch 12", "12=40", "release 12"));
    set(Ports::hold, 1);
    EXPECT_THAT(take(), ElementsAre("touch 5", "5=1")) << "as long as it is held";
    set(Ports::hold, 0);
    EXPECT_THAT(take(), ElementsAre("5=0", "release 5"));
    chorale::ParameterGesture(m_parameters.parameter(Ports::strum)).setValue(50);
    EXPECT_THAT(take(), ElementsAre("touch 12", "12=40", "12=50", "12=50", "release 12")) << "one, not two";
}

TEST_F(EditorParametersTest, ATypedPartOfAWholeNumberShowsWhatItPlays) {
    set(Ports::inversion, 2.5F);
    EXPECT_THAT(take(), ElementsAre("touch 11", "11=3", "release 11"));
    EXPECT_EQ(shown(Ports::inversion), 3);
}

TEST_F(EditorParametersTest, ALateEchoIsNotTakenForTheHostsChange) {
    {
        chorale::ParameterGesture gesture(m_parameters.parameter(Ports::strum));
        for (const float value : {20.F, 40.F, 60.F})
            gesture.setValue(value);
        receive(Ports::strum, 20);
    }
    take();
    std::vector<float> values;
    const auto connection =
        QObject::connect(m_parameters.parameter(Ports::strum).get(), &chorale::AudioParameter::valueChanged,
                         [&] { values.push_back(shown(Ports::strum)); });
    for (const float echo : {20.F, 40.F, 60.F}) {
        QTest::qWait(echoTime / 4);
        receive(Ports::strum, echo);
    }
    QTest::qWait(echoTime);
    EXPECT_THAT(values, IsEmpty()) << "it never goes back";
    QObject::disconnect(connection);
    EXPECT_EQ(shown(Ports::strum), 60);
    EXPECT_THAT(take(), IsEmpty()) << "nor does it come back as the user's";
    receive(Ports::strum, 7);
    EXPECT_EQ(shown(Ports::strum), 7) << "at once";
}

TEST_F(EditorParametersTest, WhatTheHostMakesOfAValueShowsInTheEnd) {
    set(Ports::strum, 40);
    receive(Ports::strum, 32);
    EXPECT_EQ(shown(Ports::strum), 40);
    QTRY_COMPARE_WITH_TIMEOUT(shown(Ports::strum), 32.F, 2 * echoTime);
    set(Ports::strum, 50);
    receive(Ports::strum, 48);
    set(Ports::strum, 60);
    take();
    QTest::qWait(echoTime * 3 / 2);
    EXPECT_EQ(shown(Ports::strum), 60) << "what came before the user's last value is outdated";
}
