#include "Platform/Controls/Control.h"

#include <QWidget>

namespace platform {

void Control::setAction(std::optional<Selector> action, QObject* target) {
    setAction(action);
    setTarget(target);
}

bool Control::sendAction(std::optional<Selector> action, QObject* target) {
    return action && platform::sendAction(*action, target, &view());
}

bool Control::sendAction() {
    return sendAction(action(), target());
}

} // namespace platform
