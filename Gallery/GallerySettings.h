#pragma once

namespace gallery {

/// How the controls of a page are shown.
struct GallerySettings {
    enum class ControlSize { small, regular, large };
    enum class StyleSet { dark, light, accent };

    bool isEnabled = true;
    bool isSelected = false;
    ControlSize size = ControlSize::regular;
    StyleSet styleSet = StyleSet::dark;
    /// Pixels a point.
    double scale = 1;
    bool isRightToLeft = false;

    bool operator==(const GallerySettings&) const = default;
};

} // namespace gallery
