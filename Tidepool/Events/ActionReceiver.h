#pragma once

#include "Platform/Controls/Control.h"
#include "Platform/Core/FatalError.h"

#include <QObject>

namespace tidepool {

/// What can be the target of a control with a handler: a QObject with a slot for the action. Main thread.
class ActionReceiver : public QObject {
    Q_OBJECT

public:
    static constexpr platform::Selector actionWithSenderSelector{"actionWithSender"};

    Q_INVOKABLE virtual void actionWithSender(QObject* sender) = 0;
};

/// The action's sender as what its receiver expects; a sender of another type stops the program.
template <typename T>
T& senderAs(QObject* sender) {
    auto* const control = dynamic_cast<T*>(sender);
    if (control == nullptr)
        platform::fatalError("The sender of an action is not of the expected type");
    return *control;
}

} // namespace tidepool
