#include "Tidepool/Text/FirstResponderAwareTextField.h"

namespace tidepool {

const platform::AnyPublisher<std::pair<FirstResponderAwareTextField*, bool>>&
FirstResponderAwareTextField::firstResponderPublisher() const {
    if (!m_subject) {
        m_subject = std::make_shared<Subject>();
        m_publisher = m_subject;
    }
    return m_publisher;
}

void FirstResponderAwareTextField::firstResponderDidChange() {
    if (isFirstResponder() == m_published)
        return;
    m_published = !m_published;
    const QPointer<FirstResponderAwareTextField> self(this);
    const bool status = m_published;
    if (const auto subject = m_subject)
        subject->send({this, status});
    if (self)
        firstResponderStatusChanged(status);
}

} // namespace tidepool
