#pragma once

#include "Tidepool/Text/StyledTextField.h"

namespace tidepool {

/// A text field that is as wide as its text.
class WidthResizingTextField : public StyledTextField {
    Q_OBJECT

public:
    using StyledTextField::StyledTextField;

    QSizeF intrinsicContentSize() const override;
};

} // namespace tidepool
