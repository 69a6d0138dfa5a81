#pragma once

#include "Tidepool/Styles/BaseStyle.h"

namespace tidepool {

/// Windows.
class WindowStyle : public BaseStyle {
    TP_STYLE_FIELD(QSizeF, padding, setPadding, Styles::Window::padding)
    TP_STYLE_FIELD(QFont, font, setFont, Styles::Control::font())
    TP_STYLE_FIELD(QColor, textColor, setTextColor, Styles::Control::text)
};

/// Popovers look like windows.
class PopoverStyle : public WindowStyle {};

} // namespace tidepool
