#pragma once

#include "VantorShaders/resource_bundle_accessor.h"

#include "Platform/Graphics/AssetResource.h"

namespace vantor {

constexpr platform::ImageResource imageAsset(const char* name) {
    return {name, resourceBundle};
}

/// Textures of the animated About view.
struct AboutTextures {
    static constexpr auto logo = imageAsset("skerry-logo");
    static constexpr auto noise = imageAsset("skerry-noise");
};

} // namespace vantor
