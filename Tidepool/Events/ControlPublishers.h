#pragma once

#include "Platform/Controls/PopUpButton.h"
#include "Platform/Controls/PushButton.h"
#include "Tidepool/Events/NSControlPublisher.h"

namespace tidepool {

// What a control has at the moment of each of its actions, changed or not. See `publisher` for what that
// takes from the control.

/// The state of a button.
template <std::derived_from<platform::PushButton> Button>
platform::AnyPublisher<platform::ControlState> statePublisher(Button& button) {
    return publisher(button)->map([](Button* const& sender) { return sender->state(); });
}

/// The selected item of a pop-up button, or null.
template <std::derived_from<platform::PopUpButton> Button>
platform::AnyPublisher<platform::MenuItem*> selectedItemPublisher(Button& button) {
    return publisher(button)->map([](Button* const& sender) { return sender->selectedItem(); });
}

/// The value of a control as a number.
template <CombineCompatible Control>
platform::AnyPublisher<double> doubleValuePublisher(Control& control) {
    return publisher(control)->map([](Control* const& sender) { return sender->doubleValue(); });
}

} // namespace tidepool
