#pragma once

#include "Tidepool/Palette/AssetResources.h"

namespace tidepool {

// Assets beyond the palette, by the controls that draw them. Suffixes: "-down" pressed, "-selected" on or
// selected,
// "-on" and "-mixed" the values of a check box, "-focus" and "-error" focused and invalid.

struct SignalColors {
    static constexpr auto error = colorAsset("Error");
    static constexpr auto systemHighlight = colorAsset("Highlight/System");
};

struct PushButtonImages {
    static constexpr auto selected = imageAsset("tpk-button-selected");
};

struct CheckBoxImages {
    static constexpr auto mixed = imageAsset("tpk-checkbox-mixed");
    static constexpr auto mixedDown = imageAsset("tpk-checkbox-mixed-down");
};

struct ComboBoxImages {
    static constexpr auto normal = imageAsset("tpk-combobox");
    static constexpr auto up = imageAsset("tpk-combobox-up");
};

struct CustomSliderImages {
    static constexpr auto handle = imageAsset("tpk-customslider-handle");
    static constexpr auto handleDown = imageAsset("tpk-customslider-handle-down");
    static constexpr auto on = imageAsset("tpk-customslider-on");
};

struct PopDownImages {
    static constexpr auto normal = imageAsset("tpk-popdown");
    static constexpr auto down = imageAsset("tpk-popdown-down");
};

struct PopUpImages {
    static constexpr auto normal = imageAsset("tpk-popup");
    static constexpr auto down = imageAsset("tpk-popup-down");
    static constexpr auto tool = imageAsset("tpk-popup-tool");
    static constexpr auto toolDown = imageAsset("tpk-popup-tool-down");
};

struct SearchFieldImages {
    static constexpr auto normal = imageAsset("tpk-searchfield");
    static constexpr auto focus = imageAsset("tpk-searchfield-focus");
};

struct SliderImages {
    static constexpr auto normal = imageAsset("tpk-slider");
    static constexpr auto alley = imageAsset("tpk-slider-alley");
    static constexpr auto handle = imageAsset("tpk-slider-handle");
    static constexpr auto handleDown = imageAsset("tpk-slider-handle-down");
    static constexpr auto handleMulti = imageAsset("tpk-slider-handle-multi");
};

struct TextFieldImages {
    static constexpr auto tableheader = imageAsset("tpk-textfield-tableheader");
};

struct WindowTabImages {
    static constexpr auto normal = imageAsset("tpk-window-tab");
    static constexpr auto down = imageAsset("tpk-window-tab-down");
    static constexpr auto selected = imageAsset("tpk-window-tab-selected");
};

struct CornerToolImages {
    static constexpr auto background = imageAsset("corner-tool-background");
    static constexpr auto backgroundDown = imageAsset("corner-tool-background-down");
    static constexpr auto backgroundSelected = imageAsset("corner-tool-background-selected");
    static constexpr auto more = imageAsset("corner-tool-more");
};

struct OrganiserImages {
    static constexpr auto iconDisclose = imageAsset("organiser-icon-disclose");
    static constexpr auto iconDiscloseOpen = imageAsset("organiser-icon-disclose-open");
    static constexpr auto iconStar = imageAsset("organiser-icon-star");
    static constexpr auto iconStarEmpty = imageAsset("organiser-icon-star-empty");
    static constexpr auto navbarBack = imageAsset("organiser-navbar-back");
    static constexpr auto navbarBackDown = imageAsset("organiser-navbar-back-down");
};

struct PropertiesTableImages {
    static constexpr auto tableAdd = imageAsset("properties-table-add");
    static constexpr auto tableAddDown = imageAsset("properties-table-add-down");
    static constexpr auto tableheaderOverflow = imageAsset("properties-tableheader-overflow");
    static constexpr auto tableheaderOverflowDown = imageAsset("properties-tableheader-overflow-down");
};

} // namespace tidepool
