#pragma once

#include "Platform/Graphics/AssetResource.h"

namespace noteloft::plugin {

/// The bundle with the editor's own colours and images.
const platform::Bundle& editorBundle();

constexpr platform::ColorResource colorAsset(const char* name) {
    return {name, editorBundle};
}

constexpr platform::ImageResource imageAsset(const char* name) {
    return {name, editorBundle};
}

struct EditorColors {
    static constexpr auto ground = colorAsset("Ground");
    static constexpr auto label = colorAsset("Label");
    static constexpr auto value = colorAsset("Value");
    static constexpr auto accent = colorAsset("Accent");
    static constexpr auto whiteKey = colorAsset("WhiteKey");
    static constexpr auto blackKey = colorAsset("BlackKey");
    static constexpr auto rootDot = colorAsset("RootDot");
};

struct EditorImages {
    static constexpr auto hold = imageAsset("hold");
    static constexpr auto holdDown = imageAsset("hold-down");
};

/// Loads the display font that lies in `folder`, once for the process.
void loadDisplayFont(const QString& folder);

} // namespace noteloft::plugin
