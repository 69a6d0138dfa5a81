#include "Noteloft/QuillfenButtonStyle.h"

#include "Noteloft/Assets.h"
#include "Platform/Graphics/SystemFont.h"

namespace noteloft {

QFont QuillfenButtonStyle::font() const {
    return platform::systemFont(12, QFont::Bold, platform::FontDesign::rounded);
}

const platform::Image& QuillfenButtonStyle::bezel(bool isPressed) const {
    return isPressed ? Images::tpkButtonDown : Images::tpkButton;
}

QColor QuillfenButtonStyle::labelColor(const platform::ButtonConfiguration& configuration) const {
    return configuration.isPressed() ? Colors::labels : Colors::buttonText;
}

} // namespace noteloft
