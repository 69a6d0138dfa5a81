#include "Gallery/StyleSet.h"

#include "Gallery/Layout/Text.h"
#include "Tidepool/Assets.h"
#include "Tidepool/Palette/TPColors.h"
#include "Tidepool/Styles/CheckBoxCellStyle.h"

#include <QApplication>
#include <QPalette>

namespace gallery {

using tidepool::TPColorsAK;

void useAppearance(GallerySettings::StyleSet set) {
    const bool isLight = set == GallerySettings::StyleSet::light;
    platform::setAppearance(isLight ? platform::Appearance::light : platform::Appearance::dark);
    // Menus and tool tips are windows of their own.
    QApplication::setPalette(kitPalette());
}

QPalette kitPalette() {
    QPalette palette(TPColorsAK::grey20.color(), TPColorsAK::Background::normal.color());
    const bool isDark = platform::currentAppearance() == platform::Appearance::dark;
    palette.setColor(QPalette::Base, isDark ? TPColorsAK::grey20.color() : Qt::white);
    palette.setColor(QPalette::AlternateBase, TPColorsAK::Background::darker);
    palette.setColor(QPalette::Text, TPColorsAK::grey85);
    palette.setColor(QPalette::WindowText, TPColorsAK::grey85);
    palette.setColor(QPalette::ButtonText, TPColorsAK::grey85);
    palette.setColor(QPalette::PlaceholderText, TPColorsAK::grey60);
    palette.setColor(QPalette::Highlight, tidepool::Colors::Highlight::system);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, TPColorsAK::grey40);
    return palette;
}

std::shared_ptr<const tidepool::StyleSet> kitStyles(const GallerySettings& settings) {
    return tidepool::makeStyleSet(platform::currentAppearance(), accentOf(settings));
}

std::shared_ptr<const tidepool::StyleSet> formStyles(const GallerySettings& settings) {
    const auto box =
        tidepool::makeStyle<tidepool::CheckBoxCellStyle>({platform::currentAppearance(), accentOf(settings)});
    box->setFont(textFont(TextRole::body));
    const auto set = std::make_shared<tidepool::StyleSet>();
    set->set<tidepool::CheckBoxCellStyle>(box);
    return set;
}

std::optional<QColor> accentOf(const GallerySettings& settings) {
    if (settings.styleSet != GallerySettings::StyleSet::accent)
        return std::nullopt;
    return TPColorsAK::Vantor::purple.color();
}

} // namespace gallery
