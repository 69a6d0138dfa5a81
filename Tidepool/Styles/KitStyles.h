#pragma once

#include "Tidepool/Styles/ControlStyle.h"
#include "Tidepool/Styles/StyleSet.h"

#include <optional>

namespace tidepool {

/// A set with all of the kit's styles, made in `appearance` and, if there is one, with `accent` in place of
/// the kit's blue.
///
///     StyleSet::apply(*window, makeStyleSet(platform::Appearance::light, QColor(0xe0, 0x60, 0x20)));
std::shared_ptr<const StyleSet> makeStyleSet(platform::Appearance appearance,
                                             const std::optional<QColor>& accent = std::nullopt);

/// Gives the style's selections, focus rings and images the accent.
void applyAccent(ControlStyle& style, const QColor& accent);

} // namespace tidepool
