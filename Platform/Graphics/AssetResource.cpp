#include "Platform/Graphics/AssetResource.h"

#include "Platform/Graphics/AssetCatalog.h"

namespace platform {

const QColor& ColorResource::color() const {
    return AssetCatalog::of(bundle()).color(name);
}

const Image& ImageResource::image() const {
    return AssetCatalog::of(bundle()).image(name);
}

} // namespace platform
