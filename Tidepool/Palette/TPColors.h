#pragma once

#include "Tidepool/Palette/AssetResources.h"

namespace tidepool {

/// The kit's colours. Each member stands for its colour in the current appearance.
struct TPColors {
    struct Background {
        static constexpr auto normal = colorAsset("Background/Normal");
        static constexpr auto darker = colorAsset("Background/Darker");
        static constexpr auto darkest = colorAsset("Background/Darkest");
    };

    struct Vantor {
        static constexpr auto aqua = colorAsset("Vantor/Aqua");
        static constexpr auto blue = colorAsset("Vantor/Blue");
        static constexpr auto darkPurple = colorAsset("Vantor/DarkPurple");
        static constexpr auto lightBlue = colorAsset("Vantor/LightBlue");
        static constexpr auto orange = colorAsset("Vantor/Orange");
        static constexpr auto purple = colorAsset("Vantor/Purple");
        static constexpr auto red = colorAsset("Vantor/Red");
        static constexpr auto yellow = colorAsset("Vantor/Yellow");
    };

    static constexpr auto grey20 = colorAsset("Grey 20%");
    static constexpr auto grey30 = colorAsset("Grey 30%");
    static constexpr auto grey40 = colorAsset("Grey 40%");
    static constexpr auto grey50 = colorAsset("Grey 50%");
    static constexpr auto grey60 = colorAsset("Grey 60%");
    static constexpr auto grey70 = colorAsset("Grey 70%");
    static constexpr auto grey85 = colorAsset("Grey 85%");
    static constexpr auto grey100 = colorAsset("Grey 100%");
};

/// The same colours for desktop views and cells, which here draw with the same type as declarative views.
using TPColorsAK = TPColors;

} // namespace tidepool
