#pragma once

#include "Tidepool/Text/StyledTextField.h"

namespace tidepool {

/// How a text field looks that may be wrong.
class ValidatingTextFieldCell : public StyledTextFieldCell {
public:
    bool isValid() const { return m_isValid; }

    void setValid(bool valid) { set(m_isValid, valid); }

    StyledControlState controlState(StyledControlState ofControl) const override;

private:
    bool m_isValid = true;
};

/// A text field whose owner says whether the text is valid, and why not. The message appears in a popover
/// when the user types.
///
///     connect(name, &ValidatingTextField::textChanged, this, [=](const QString& text) {
///         name->setValid(!text.isEmpty());
///         name->setMessage(text.isEmpty() ? std::optional(tr("A name is needed")) : std::nullopt);
///     });
class ValidatingTextField : public StyledTextField, public Validating {
    Q_OBJECT

public:
    explicit ValidatingTextField(const QString& text = {}, QWidget* parent = nullptr);

    ValidatingTextFieldCell& cell() const {
        return static_cast<ValidatingTextFieldCell&>(StyledTextField::cell());
    }

    bool isValid() const override { return cell().isValid(); }

    void setValid(bool valid) { cell().setValid(valid); }

    const std::optional<QString>& message() const { return m_message; }

    /// Shown, or taken away, when the text changes next.
    void setMessage(std::optional<QString> message) { m_message = std::move(message); }

protected:
    std::optional<QString> shownMessage() const override;
    void firstResponderStatusChanged(bool isFirstResponder) override;

private:
    std::optional<QString> m_message;
};

} // namespace tidepool
