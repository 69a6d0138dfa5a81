#pragma once

#include "Gallery/GallerySettings.h"

#include "Tidepool/ControlStyle.h"

class QPalette;

namespace gallery {

/// Sets the appearance of the application. Styles and pages made afterwards have its colours and images.
void useAppearance(GallerySettings::StyleSet set);

/// The palette of Qt's own widgets in the kit's colours, in the current appearance.
QPalette kitPalette();

/// Gives selections and focus rings the accent if the settings ask for it.
void applyAccent(tidepool::ControlStyle& style, const GallerySettings& settings);

/// A style of the kit as the settings want it.
template <class Style>
Style styled(const GallerySettings& settings) {
    Style style;
    applyAccent(style, settings);
    return style;
}

} // namespace gallery
