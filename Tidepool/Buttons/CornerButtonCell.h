#pragma once

#include "Tidepool/Buttons/StyledButtonCell.h"
#include "Tidepool/Styles/ToolButtonCellStyles.h"

namespace tidepool {

/// The push button's bezel with insets of its own.
class CornerButtonCell : public StyledButtonCell {
public:
    const CornerButtonCellStyle& style() const override { return resolvedStyle<CornerButtonCellStyle>(); }
};

} // namespace tidepool
