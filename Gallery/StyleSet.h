#pragma once

#include "Gallery/GallerySettings.h"

#include "Tidepool/Styles/StyleSet.h"

#include <QColor>

#include <memory>
#include <optional>

class QPalette;

namespace gallery {

/// Sets the appearance and the palette of the application. Styles and pages made afterwards have its colours
/// and images.
void useAppearance(GallerySettings::StyleSet set);

/// The palette of Qt's own widgets in the kit's colours, in the current appearance.
QPalette kitPalette();

/// The kit's styles as the settings want them.
std::shared_ptr<const tidepool::StyleSet> kitStyles(const GallerySettings& settings);

/// Check boxes in the size of the text around them, for the gallery's own forms.
std::shared_ptr<const tidepool::StyleSet> formStyles(const GallerySettings& settings);

/// The accent that the settings ask for, if they do.
std::optional<QColor> accentOf(const GallerySettings& settings);

} // namespace gallery
