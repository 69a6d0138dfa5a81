#pragma once

#include "Tidepool/Styles/ButtonCellStyle.h"

namespace tidepool {

/// Combo boxes.
class ComboBoxStyle : public ButtonCellStyle {
public:
    ComboBoxStyle();

    /// The field, and what opens the list: `on` while it is open.
    TP_STYLE_FIELD(platform::Image, fieldImage, setFieldImage)
    TP_STYLE_FIELD(StateImages, arrowImages, setArrowImages)
};

/// Buttons with a menu, whose title may follow a label.
class MenuButtonCellStyle : public ButtonCellStyle {
public:
    MenuButtonCellStyle();

    TP_STYLE_FIELD(QColor, labelTextColor, setLabelTextColor, Styles::Label::text)
    TP_STYLE_FIELD(QColor, disabledLabelTextColor, setDisabledLabelTextColor, Styles::Label::disabledText)
};

/// Pop-up buttons, which show the chosen item.
class PopUpButtonCellStyle : public MenuButtonCellStyle {
public:
    PopUpButtonCellStyle();
};

/// Pop-down buttons, which open a menu of commands.
class StyledPopDownButtonCellStyle : public MenuButtonCellStyle {
public:
    StyledPopDownButtonCellStyle();
};

/// Small pop-up buttons of a tool bar.
class ToolPopUpButtonCellStyle : public PopUpButtonCellStyle {
public:
    ToolPopUpButtonCellStyle();
};

} // namespace tidepool
