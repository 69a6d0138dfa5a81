#pragma once

#include "Tidepool/Events/ActionReceiver.h"
#include "Tidepool/Events/ControlActions.h"

#include <QPointer>
#include <QWidget>

#include <concepts>
#include <memory>

namespace tidepool {

/// A control whose actions can be subscribed to: a widget with a target and an action.
template <typename T>
concept CombineCompatible = std::derived_from<T, platform::Control> && std::derived_from<T, QWidget>;

/// Sends a control to its subscribers each time it sends its action, and the end when the control goes.
/// Main thread.
template <CombineCompatible Control>
class NSControlPublisher : public platform::Publisher<Control*> {
public:
    /// Takes the place of the control's target, and so silences whatever published its actions before. Most
    /// callers want `publisher`.
    explicit NSControlPublisher(Control& control)
        : NSControlPublisher(control, (new ControlActions(control))->subject()) {}

    NSControlPublisher(Control& control, const std::shared_ptr<ControlActions::Subject>& actions)
        : m_control(&control), m_controls(actions->map([](platform::Control* const& sender) {
              return &senderAs<Control>(&sender->view());
          })) {}

    /// Null once it has gone.
    Control* control() const { return m_control; }

    void receive(std::shared_ptr<platform::Subscriber<Control*>> subscriber) override {
        m_controls->receive(std::move(subscriber));
    }

private:
    QPointer<Control> m_control;
    const platform::AnyPublisher<Control*> m_controls;
};

/// The publisher of `control`, the same for each call. The first makes it the control's target, in place of
/// any other; a target that is set later silences it.
template <CombineCompatible Control>
std::shared_ptr<NSControlPublisher<Control>> publisher(Control& control) {
    ControlActions& actions = ControlActions::of(control);
    std::shared_ptr<void>& known = actions.publishers[typeid(Control)];
    if (!known)
        known = std::make_shared<NSControlPublisher<Control>>(control, actions.subject());
    return std::static_pointer_cast<NSControlPublisher<Control>>(known);
}

} // namespace tidepool
