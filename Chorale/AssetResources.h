#pragma once

#include "Chorale/resource_bundle_accessor.h"

#include "Platform/Graphics/AssetResource.h"

namespace chorale {

constexpr platform::ColorResource colorAsset(const char* name) {
    return {name, resourceBundle};
}

constexpr platform::ImageResource imageAsset(const char* name) {
    return {name, resourceBundle};
}

/// The colours and the logo of the plug-in's editor.
struct EditorAssets {
    static constexpr auto background = colorAsset("background");
    static constexpr auto tabSelected = colorAsset("tabSelected");
    static constexpr auto tabUnselected = colorAsset("tabUnselected");
    static constexpr auto updateBackground = colorAsset("updateBackground");
    static constexpr auto versionInfo = colorAsset("versionInfo");
    static constexpr auto quillfenLogo = imageAsset("quillfen-logo");
};

} // namespace chorale
