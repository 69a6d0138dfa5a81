#include "Noteloft/QuillfenButtonStyle.h"

#include "Noteloft/ResourceBundle.h"
#include "Platform/Graphics/SystemFont.h"

namespace noteloft {

QFont QuillfenButtonStyle::font() const {
    return platform::systemFont(12, QFont::Bold, platform::FontDesign::rounded);
}

const platform::Image& QuillfenButtonStyle::bezel(bool isPressed) const {
    return isPressed ? Assets::buttonDown : Assets::button;
}

QColor QuillfenButtonStyle::labelColor(const platform::ButtonConfiguration& configuration) const {
    return configuration.isPressed() ? Assets::labels : Assets::buttonText;
}

} // namespace noteloft
