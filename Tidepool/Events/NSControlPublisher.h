#pragma once

#include "Platform/Publishing/PassthroughSubject.h"
#include "Tidepool/Events/ActionReceiver.h"

#include <QPointer>

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
    explicit NSControlPublisher(Control& control) : m_control(&control) {}

    /// Null once it has gone.
    Control* control() const { return m_control; }

    void receive(std::shared_ptr<platform::Subscriber<Control*>> subscriber) override {
        m_subject->receive(std::move(subscriber));
    }

    void send(Control& control) { m_subject->send(&control); }

    void finish() { m_subject->send(platform::Completion{}); }

private:
    QPointer<Control> m_control;
    const std::shared_ptr<platform::PassthroughSubject<Control*>> m_subject =
        std::make_shared<platform::PassthroughSubject<Control*>>();
};

/// What the control keeps: its target, and with it the publisher.
template <CombineCompatible Control>
class ControlPublisherTarget : public ControlActionReceiver {
public:
    static QString key() { return QStringLiteral("PublisherHelperKey"); }

    explicit ControlPublisherTarget(Control& control)
        : m_publisher(std::make_shared<NSControlPublisher<Control>>(control)) {
        setParent(&control);
        setObjectName(key());
        control.setAction(controlActionWithSenderSelector, this);
    }

    ~ControlPublisherTarget() override { m_publisher->finish(); }

    const std::shared_ptr<NSControlPublisher<Control>>& publisher() const { return m_publisher; }

    void controlActionWithSender(QObject* sender) override { m_publisher->send(senderAs<Control>(sender)); }

private:
    const std::shared_ptr<NSControlPublisher<Control>> m_publisher;
};

/// The one publisher of `control`. The first call makes it the control's target, in place of any other; a
/// target that is set later silences it. Always call it with the same static type: a control has one
/// publisher, and one of another type takes its place and ends it.
template <CombineCompatible Control>
std::shared_ptr<NSControlPublisher<Control>> publisher(Control& control) {
    using Target = ControlPublisherTarget<Control>;
    auto* const known =
        control.template findChild<ControlActionReceiver*>(Target::key(), Qt::FindDirectChildrenOnly);
    if (const auto* const target = dynamic_cast<Target*>(known))
        return target->publisher();
    const std::unique_ptr<QObject> former(known);
    return (new Target(control))->publisher();
}

} // namespace tidepool
