#pragma once

#include "Platform/Core/Bundle.h"
#include "Platform/Graphics/AssetResource.h"

namespace noteloft {

/// The bundle with the application's own assets, found on the first call and then kept.
const platform::Bundle& resourceBundle();

constexpr platform::ColorResource colorAsset(const char* name) {
    return {name, resourceBundle};
}

constexpr platform::ImageResource imageAsset(const char* name) {
    return {name, resourceBundle};
}

/// The application's assets.
struct Assets {
    static constexpr auto background = colorAsset("background");
    static constexpr auto buttonText = colorAsset("buttonText");
    static constexpr auto labels = colorAsset("labels");
    static constexpr auto button = imageAsset("tpk-button");
    static constexpr auto buttonDown = imageAsset("tpk-button-down");
    static constexpr auto windowQuillfen = imageAsset("window-quillfen");
};

} // namespace noteloft
