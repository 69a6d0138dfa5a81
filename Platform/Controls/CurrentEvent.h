#pragma once

#include <QEvent>
#include <Qt>

#include <optional>

namespace platform {

/// What the user has done: pressed or let go of a button of the pointer, or a key that is no modifier.
struct UserEvent {
    QEvent::Type type = QEvent::None;
    Qt::KeyboardModifiers modifiers;
};

/// The event that the application is acting on; absent when it acts by itself, or for assistive technology.
/// Recorded by one filter of the application. Main thread.
std::optional<UserEvent> currentEvent();

/// Makes `event` the current one while it lives: for what answers to an event only later.
class CurrentEventScope {
public:
    explicit CurrentEventScope(std::optional<UserEvent> event);
    ~CurrentEventScope();
    CurrentEventScope(const CurrentEventScope&) = delete;
    CurrentEventScope& operator=(const CurrentEventScope&) = delete;

private:
    const std::optional<UserEvent> m_former;
};

} // namespace platform
