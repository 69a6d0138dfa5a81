#pragma once

#include "Platform/Text/TextFieldCell.h"

namespace platform {

/// How a combo box looks: a field, and at the end of its line an arrow.
class ComboBoxCell : public TextFieldCell {
public:
    /// What a press must hit to open the list.
    virtual QRectF arrowRect(const QRectF& bounds, const CellContext& context) const = 0;
};

} // namespace platform
