#include "Tidepool/Styles/Styles.h"

#include "Platform/Graphics/SystemFont.h"

namespace tidepool {

namespace {

/// One object for all tokens of the same font.
template <int size, QFont::Weight weight>
const QFont& shared() {
    static const QFont font = platform::systemFont(size, weight);
    return font;
}

} // namespace

const QFont& Styles::WelcomeHeadings::font() {
    return shared<20, QFont::Medium>();
}

const QFont& Styles::WelcomeHeadings::subtitleFont() {
    return shared<14, QFont::Medium>();
}

const QFont& Styles::Control::font() {
    return shared<10, QFont::Normal>();
}

const QFont& Styles::Control::mediumFont() {
    return shared<10, QFont::Medium>();
}

const QFont& Styles::OutlineHeader::font() {
    return shared<12, QFont::Medium>();
}

const QFont& Styles::OutlineRow::font() {
    return shared<12, QFont::Normal>();
}

const QFont& Styles::TableGroupRow::font() {
    return shared<12, QFont::Medium>();
}

const QFont& Styles::PropertiesTab::font() {
    return shared<12, QFont::Medium>();
}

const QFont& Styles::CanvasInfo::font() {
    static const QFont font = platform::monospacedDigitSystemFont(10);
    return font;
}

} // namespace tidepool
