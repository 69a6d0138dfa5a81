#pragma once

#include "Tidepool/Styles/ControlStyle.h"

namespace tidepool {

/// Push buttons.
class ButtonCellStyle : public ControlStyle {
public:
    ButtonCellStyle();

    TP_STYLE_FIELD(QMarginsF, imageEdgeInsets, setImageEdgeInsets)
    TP_STYLE_FIELD(QMarginsF, titleEdgeInsets, setTitleEdgeInsets)
};

} // namespace tidepool
