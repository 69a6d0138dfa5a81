#include "Tidepool/Events/ControlActions.h"

#include "Tidepool/Events/ActionReceiver.h"

#include <QWidget>

namespace tidepool {

ControlActions::ControlActions(platform::Control& control) : QObject(&control.view()) {
    control.setAction(platform::Selector{"controlActionWithSender"}, this);
}

ControlActions::~ControlActions() {
    m_subject->send(platform::Completion{});
}

ControlActions& ControlActions::of(platform::Control& control) {
    const QString key = QStringLiteral("PublisherHelperKey");
    if (auto* const known = control.view().findChild<ControlActions*>(key, Qt::FindDirectChildrenOnly))
        return *known;
    auto* const made = new ControlActions(control);
    made->setObjectName(key);
    return *made;
}

void ControlActions::controlActionWithSender(QObject* sender) {
    const auto subject = m_subject; // a subscriber may destroy the control
    subject->send(&senderAs<platform::Control>(sender));
}

} // namespace tidepool
