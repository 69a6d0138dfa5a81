#pragma once

#include "Tidepool/Events/ActionReceiver.h"

#include <QWidget>

#include <concepts>
#include <functional>
#include <memory>
#include <utility>

namespace tidepool {

/// A function as the target of a control of type `T`.
template <typename T>
class ActionTrampoline : public ActionReceiver {
public:
    explicit ActionTrampoline(std::function<void(T&)> action) : m_action(std::move(action)) {}

    void actionWithSender(QObject* sender) override {
        // The action may replace, and so destroy, this trampoline.
        const auto action = m_action;
        action(senderAs<T>(sender));
    }

private:
    std::function<void(T&)> m_action;
};

/// Makes `action` the control's action, in place of any other target. The control owns it, and gives it up
/// for the next one.
template <std::derived_from<platform::Control> T>
void setActionHandler(T& control, std::type_identity_t<std::function<void(T&)>> action) {
    static const QString key = QStringLiteral("ActionTrampoline");
    const std::unique_ptr<QObject> previous(
        control.template findChild<ActionReceiver*>(key, Qt::FindDirectChildrenOnly));
    auto* const trampoline = new ActionTrampoline<T>(std::move(action));
    trampoline->setParent(&control);
    trampoline->setObjectName(key);
    control.setAction(ActionReceiver::actionWithSenderSelector, trampoline);
}

} // namespace tidepool
