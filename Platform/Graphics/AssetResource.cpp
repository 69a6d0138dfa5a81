#include "Platform/Graphics/AssetResource.h"

#include "Platform/Graphics/AssetCatalog.h"

namespace platform {

const QColor& ColorResource::color() const {
    return AssetCatalog::of(bundle()).color(QString::fromUtf8(name));
}

const Image& ImageResource::image() const {
    return AssetCatalog::of(bundle()).image(QString::fromUtf8(name));
}

} // namespace platform
