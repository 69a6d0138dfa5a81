#include "Tidepool/Styles/Styles.h"

#include "Platform/Graphics/SystemFont.h"

namespace tidepool {

namespace {

const QFont& regular10() {
    static const QFont font = platform::systemFont(10);
    return font;
}

const QFont& medium10() {
    static const QFont font = platform::systemFont(10, QFont::Medium);
    return font;
}

const QFont& regular12() {
    static const QFont font = platform::systemFont(12);
    return font;
}

const QFont& medium12() {
    static const QFont font = platform::systemFont(12, QFont::Medium);
    return font;
}

const QFont& medium14() {
    static const QFont font = platform::systemFont(14, QFont::Medium);
    return font;
}

} // namespace

const QFont& Styles::WelcomeHeadings::font() {
    static const QFont font = platform::systemFont(20, QFont::Medium);
    return font;
}

const QFont& Styles::WelcomeHeadings::subtitleFont() {
    return medium14();
}

const QFont& Styles::CustomTags::font() {
    return medium10();
}

const QFont& Styles::Control::font() {
    return regular10();
}

const QFont& Styles::Control::mediumFont() {
    return medium10();
}

const QFont& Styles::OutlineHeader::font() {
    return medium12();
}

const QFont& Styles::OutlineRow::font() {
    return regular12();
}

const QFont& Styles::TableGroupRow::font() {
    return medium12();
}

const QFont& Styles::PropertiesTab::font() {
    return medium12();
}

const QFont& Styles::CanvasInfo::font() {
    static const QFont font = platform::monospacedDigitSystemFont(10);
    return font;
}

const QFont& Styles::Window::font() {
    return regular10();
}

} // namespace tidepool
