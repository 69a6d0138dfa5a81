#pragma once

#include "Platform/Graphics/Appearance.h"
#include "Platform/Graphics/Image.h"

#include <QColor>
#include <QString>

#include <array>
#include <map>

class QJsonObject;

namespace platform {

class Bundle;

/// The named colours and images of a bundle, from its `Assets.json`. Main thread.
class AssetCatalog {
public:
    /// The catalogue of `bundle`, read on first use and then kept. Empty if the bundle has none.
    static AssetCatalog& of(const Bundle& bundle);

    explicit AssetCatalog(const Bundle& bundle);

    /// The colour in the current appearance; a colour that is not valid if there is none of that name.
    const QColor& color(const QString& name) const;

    /// The same shared image for every call; a null image if there is none of that name.
    const Image& image(const QString& name) const;

private:
    void addColor(const QJsonObject& description);
    void addImage(const QJsonObject& description, const Bundle& bundle);

    // Ordered maps, since references into them are handed out.
    std::map<QString, std::array<QColor, 2>> m_colors;
    std::map<QString, Image> m_images;
};

} // namespace platform
