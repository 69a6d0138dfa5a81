#pragma once

#include "Tidepool/Palette/resource_bundle_accessor.h"

#include "Platform/Graphics/AssetResource.h"

namespace tidepool {

constexpr platform::ColorResource colorAsset(const char* name) {
    return {name, resourceBundle};
}

constexpr platform::ImageResource imageAsset(const char* name) {
    return {name, resourceBundle};
}

} // namespace tidepool
