#pragma once

#include "Platform/Core/Action.h"

#include <QPointer>

#include <optional>

class QWidget;

namespace platform {

/// What all controls have: an action that they send to a target when the user has used them. Mixed into a
/// widget. Main thread.
class Control {
public:
    virtual ~Control() = default;

    const std::optional<Selector>& action() const { return m_action; }

    void setAction(std::optional<Selector> action) { m_action = action; }

    /// Null for the first responder that answers.
    QObject* target() const { return m_target; }

    /// Not owned; a target that has gone is none.
    void setTarget(QObject* target) { m_target = target; }

    /// Both at once.
    void setAction(std::optional<Selector> action, QObject* target);

    /// Sends `action` from this control. False if there is none, or nobody answers.
    virtual bool sendAction(std::optional<Selector> action, QObject* target);

    /// Sends the control's own action to its own target.
    bool sendAction();

    /// The value as a number; 0 for a control without one.
    virtual double doubleValue() const { return 0; }

    /// The widget that this is mixed into.
    virtual QWidget& view() = 0;

private:
    std::optional<Selector> m_action;
    QPointer<QObject> m_target;
};

} // namespace platform
