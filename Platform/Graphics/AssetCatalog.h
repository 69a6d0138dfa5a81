#pragma once

#include "Platform/Graphics/Appearance.h"
#include "Platform/Graphics/Image.h"

#include <QColor>

#include <array>
#include <functional>
#include <map>
#include <string>
#include <string_view>

class QJsonObject;

namespace platform {

class Bundle;

/// The named colours and images of a bundle, from its `Assets.json`. Main thread.
class AssetCatalog {
public:
    /// The catalogue of `bundle`, read on first use and then kept. Empty if the bundle has none.
    static AssetCatalog& of(const Bundle& bundle);

    explicit AssetCatalog(const Bundle& bundle);

    /// A colour that is not valid if there is none of that name.
    const QColor& color(std::string_view name, Appearance appearance = currentAppearance()) const;

    /// The same shared image for every call; a null image if there is none of that name. Images that have one
    /// drawing for both appearances are the same in both.
    const Image& image(std::string_view name, Appearance appearance = currentAppearance()) const;

private:
    void addColor(const QJsonObject& description);
    void addImage(const QJsonObject& description, const Bundle& bundle);

    // Ordered maps, since references into them are handed out; looked up without making a string.
    std::map<std::string, std::array<QColor, 2>, std::less<>> m_colors;
    std::map<std::string, std::array<Image, 2>, std::less<>> m_images;
};

} // namespace platform
