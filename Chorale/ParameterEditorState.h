#pragma once

#include "Platform/AudioUnits/AUParameterEvent.h"

#include <cstdint>

namespace chorale {

/// Which phase of an edit a change belongs to. The host gets the same number as its type of event.
enum class ParameterEditorState : std::uint8_t { change = 0, beginInteractive = 1, endInteractive = 2 };

constexpr platform::AUParameterAutomationEventType eventType(ParameterEditorState state) {
    return static_cast<platform::AUParameterAutomationEventType>(state);
}

static_assert(eventType(ParameterEditorState::change) == platform::AUParameterAutomationEventType::value);
static_assert(eventType(ParameterEditorState::beginInteractive) ==
              platform::AUParameterAutomationEventType::touch);
static_assert(eventType(ParameterEditorState::endInteractive) ==
              platform::AUParameterAutomationEventType::release);

} // namespace chorale
