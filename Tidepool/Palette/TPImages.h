#pragma once

#include "Tidepool/Assets.h"

namespace tidepool {

/// Images that declarative views draw with.
struct TPImages {
    static constexpr auto button = Images::tpkButton;
    static constexpr auto buttonDown = Images::tpkButtonDown;
    static constexpr auto checkerboard = Images::tpkCheckerboard;
    static constexpr auto checkerboardSmall = Images::tpkCheckerboardSmall;
    static constexpr auto textField = Images::tpkTextfield;
    static constexpr auto textFieldError = Images::tpkTextfieldError;
    static constexpr auto textFieldFocus = Images::tpkTextfieldFocus;
    static constexpr auto checkbox = Images::tpkCheckbox;
    static constexpr auto checkboxOn = Images::tpkCheckboxOn;
    static constexpr auto checkboxDown = Images::tpkCheckboxDown;
    static constexpr auto checkboxOnDown = Images::tpkCheckboxOnDown;
};

/// The same for desktop views and cells, and the cursor that only they can set.
struct TPImagesAK : TPImages {
    static constexpr auto cursorTrackingSlider = Images::cursorTrackingslider;
};

} // namespace tidepool
