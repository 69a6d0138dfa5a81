#pragma once

#include "Tidepool/ButtonCellStyle.h"

namespace tidepool {

/// Buttons of a tool bar.
class ToolButtonCellStyle : public ButtonCellStyle {
public:
    ToolButtonCellStyle();
};

/// Buttons in the corner of a view.
class CornerButtonCellStyle : public ButtonCellStyle {
public:
    CornerButtonCellStyle();
};

/// Buttons that lead back; their bezel is set on the instance that their cells share.
class BackButtonCellStyle : public ButtonCellStyle {};

} // namespace tidepool
