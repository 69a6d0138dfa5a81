#include "Noteloft/DefaultVantorButtonStyle.h"

#include "Platform/Graphics/Dimming.h"
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
    const QColor color = configuration.isPressed() ? TPColorsAK::grey50 : TPColorsAK::grey85;
    return configuration.isEnabled() ? color : platform::dimmed(color);
}

} // namespace noteloft
