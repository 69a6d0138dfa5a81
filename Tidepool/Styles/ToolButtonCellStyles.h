#pragma once

#include "Tidepool/Styles/ButtonCellStyle.h"

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

/// Buttons that lead back. A new one has a push button's bezel; the one that their cells share has the arrow.
class BackButtonCellStyle : public ButtonCellStyle {
public:
    void prepareToBeShared() override;
};

} // namespace tidepool
