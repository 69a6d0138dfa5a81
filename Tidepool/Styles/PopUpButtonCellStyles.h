#pragma once

#include "Tidepool/Styles/ButtonCellStyle.h"

namespace tidepool {

/// Combo boxes.
class ComboBoxStyle : public ButtonCellStyle {
public:
    ComboBoxStyle();
};

/// Pop-up buttons, which show the chosen item.
class PopUpButtonCellStyle : public ButtonCellStyle {
public:
    PopUpButtonCellStyle();
};

/// Pop-down buttons, which open a menu of commands.
class StyledPopDownButtonCellStyle : public ButtonCellStyle {
public:
    StyledPopDownButtonCellStyle();
};

/// Small pop-up buttons of a tool bar.
class ToolPopUpButtonCellStyle : public PopUpButtonCellStyle {
public:
    ToolPopUpButtonCellStyle();
};

} // namespace tidepool
