#include "Chorale/ParameterGesture.h"

#include <utility>

namespace chorale {

ParameterGesture::ParameterGesture(std::shared_ptr<AudioParameter> parameter)
    : m_parameter(std::move(parameter)), m_valueBefore(m_parameter->latestValue()) {
    if (m_parameter->m_gestures++ > 0)
        return;
    m_parameter->setIsBeingInteractivelyEdited(true);
    m_parameter->setValue(m_valueBefore, ParameterEditor::ui, ParameterEditorState::beginInteractive);
}

ParameterGesture::~ParameterGesture() {
    end();
}

void ParameterGesture::setValue(float value) {
    if (m_parameter)
        m_parameter->setValue(value, ParameterEditor::ui, ParameterEditorState::change);
}

void ParameterGesture::end() {
    const auto parameter = std::exchange(m_parameter, nullptr);
    if (!parameter || --parameter->m_gestures > 0)
        return;
    // With the user's last value: what the host has sent since must not come back as theirs.
    parameter->setValue(parameter->m_latestFromUi.load(), ParameterEditor::ui,
                        ParameterEditorState::endInteractive);
    parameter->setIsBeingInteractivelyEdited(false);
}

void ParameterGesture::cancel() {
    setValue(m_valueBefore);
    end();
}

} // namespace chorale
