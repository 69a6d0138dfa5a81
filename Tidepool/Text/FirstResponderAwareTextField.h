#pragma once

#include "Platform/Publishing/PassthroughSubject.h"
#include "Platform/Text/TextField.h"

#include <utility>

namespace tidepool {

/// A text field that tells when the keyboard comes and goes.
class FirstResponderAwareTextField : public platform::TextField {
    Q_OBJECT

public:
    using TextField::TextField;

    /// The field and whether it is the first responder, at each change. Never fails.
    const platform::AnyPublisher<std::pair<FirstResponderAwareTextField*, bool>>&
    firstResponderPublisher() const;

    /// What was published last; false at first.
    bool publishedFirstResponderStatus() const { return m_published; }

protected:
    FirstResponderAwareTextField(const QString& text, std::unique_ptr<platform::TextFieldCell> cell,
                                 QWidget* parent)
        : TextField(text, std::move(cell), parent) {}

    /// After the status was published.
    virtual void firstResponderStatusChanged(bool /*isFirstResponder*/) {}

    void firstResponderDidChange() override;

private:
    using Subject = platform::PassthroughSubject<std::pair<FirstResponderAwareTextField*, bool>>;

    // Made when somebody asks for it: most fields have no listener.
    mutable std::shared_ptr<Subject> m_subject;
    mutable platform::AnyPublisher<std::pair<FirstResponderAwareTextField*, bool>> m_publisher;
    bool m_published = false;
};

} // namespace tidepool
