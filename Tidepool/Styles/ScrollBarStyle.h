#pragma once

#include "Tidepool/Styles/BaseStyle.h"

namespace tidepool {

/// Scroll bars.
class ScrollBarStyle : public BaseStyle {
    TP_STYLE_FIELD(QColor, knobColor, setKnobColor, TPColors::grey40)
    TP_STYLE_FIELD(QColor, hoveredKnobColor, setHoveredKnobColor, TPColors::grey50)
    TP_STYLE_FIELD(QColor, pressedKnobColor, setPressedKnobColor, TPColors::grey60)
    TP_STYLE_FIELD(QColor, slotColor, setSlotColor, TPColors::grey20)
};

} // namespace tidepool
