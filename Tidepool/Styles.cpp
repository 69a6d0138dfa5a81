#include "Tidepool/Styles.h"

#include "Platform/Graphics/SystemFont.h"

namespace tidepool {

const QFont& Styles::Control::font() {
    static const QFont font = platform::systemFont(10);
    return font;
}

const QFont& Styles::Control::mediumFont() {
    static const QFont font = platform::systemFont(10, QFont::Medium);
    return font;
}

const QFont& Styles::PropertiesTab::font() {
    static const QFont font = platform::systemFont(12, QFont::Medium);
    return font;
}

const QFont& Styles::Window::font() {
    return Control::font();
}

} // namespace tidepool
