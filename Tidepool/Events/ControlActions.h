#pragma once

#include "Platform/Controls/Control.h"
#include "Platform/Publishing/PassthroughSubject.h"

#include <QObject>

#include <map>
#include <memory>
#include <typeindex>

namespace tidepool {

/// The target of a control whose actions are published; it sends them on, and the end when the control goes.
/// A child of the control. Main thread.
class ControlActions : public QObject {
    Q_OBJECT

public:
    using Subject = platform::PassthroughSubject<platform::Control*>;

    /// Becomes the control's target, in place of any other.
    explicit ControlActions(platform::Control& control);
    ~ControlActions() override;

    /// The one that `publisher` has made for the control; made by the first call.
    static ControlActions& of(platform::Control& control);

    const std::shared_ptr<Subject>& subject() const { return m_subject; }

    /// The publishers of the control, by the type that they send it as.
    std::map<std::type_index, std::shared_ptr<void>> publishers;

    Q_INVOKABLE void controlActionWithSender(QObject* sender);

private:
    const std::shared_ptr<Subject> m_subject = std::make_shared<Subject>();
};

} // namespace tidepool
