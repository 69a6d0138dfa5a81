#include "Noteloft/DefaultVantorButtonStyle.h"

#include "Platform/Graphics/SystemFont.h"
#include "Tidepool/Palette/TPColors.h"
#include "Tidepool/Palette/TPImages.h"

namespace noteloft {

using tidepool::TPColorsAK;
using tidepool::TPImages;

QFont DefaultVantorButtonStyle::font() const {
    return platform::systemFont(11);
}

const platform::Image& DefaultVantorButtonStyle::bezel(bool isPressed) const {
    return isPressed ? TPImages::buttonDown : TPImages::button;
}

QColor DefaultVantorButtonStyle::labelColor(const platform::ButtonConfiguration& configuration) const {
    QColor color = configuration.isPressed ? TPColorsAK::grey50 : TPColorsAK::grey85;
    if (!configuration.isEnabled)
        color.setAlphaF(color.alphaF() * 0.5F);
    return color;
}

} // namespace noteloft
