#pragma once

#include "Tidepool/Palette/AssetResources.h"

namespace tidepool {

/// Images that declarative views draw with.
struct TPImages {
    static constexpr auto button = imageAsset("tpk-button");
    static constexpr auto buttonDown = imageAsset("tpk-button-down");
    static constexpr auto checkerboard = imageAsset("tpk-checkerboard");
    static constexpr auto checkerboardSmall = imageAsset("tpk-checkerboard-small");
    static constexpr auto textField = imageAsset("tpk-textfield");
    static constexpr auto textFieldError = imageAsset("tpk-textfield-error");
    static constexpr auto textFieldFocus = imageAsset("tpk-textfield-focus");
    static constexpr auto checkbox = imageAsset("tpk-checkbox");
    static constexpr auto checkboxOn = imageAsset("tpk-checkbox-on");
    static constexpr auto checkboxDown = imageAsset("tpk-checkbox-down");
    static constexpr auto checkboxOnDown = imageAsset("tpk-checkbox-on-down");
};

/// The same for desktop views and cells, and the cursor that only they can set.
struct TPImagesAK : TPImages {
    static constexpr auto cursorTrackingSlider = imageAsset("cursor-trackingslider");
};

} // namespace tidepool
