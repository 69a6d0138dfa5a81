#include "Tidepool/Text/ValidatingTextField.h"

namespace tidepool {

StyledControlState ValidatingTextFieldCell::controlState(StyledControlState ofControl) const {
    const StyledControlState state = StyledTextFieldCell::controlState(ofControl);
    return m_isValid ? state : state.with(StyledControlState::invalid);
}

ValidatingTextField::ValidatingTextField(const QString& text, QWidget* parent)
    : StyledTextField(text, std::make_unique<ValidatingTextFieldCell>(), parent) {}

std::optional<QString> ValidatingTextField::shownMessage() const {
    return m_message ? m_message : StyledTextField::shownMessage();
}

/// The message waits until the user types.
void ValidatingTextField::firstResponderStatusChanged(bool isFirstResponder) {
    if (!isFirstResponder)
        StyledTextField::firstResponderStatusChanged(isFirstResponder);
}

} // namespace tidepool
