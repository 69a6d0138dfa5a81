#include "Gallery/Pages/KitAssets.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Graphics/AssetCatalog.h"
#include "Tidepool/Palette/resource_bundle_accessor.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace gallery {

using platform::Appearance;
using platform::AssetCatalog;

namespace {

const AssetCatalog& catalog() {
    return AssetCatalog::of(tidepool::resourceBundle());
}

/// The catalogue gives assets by name; their order and their comments are for people.
QList<KitAsset> readAssets(const QString& kind) {
    QFile manifest(tidepool::resourceBundle().path(QStringLiteral("Assets.json")));
    QList<KitAsset> assets;
    if (manifest.open(QIODevice::ReadOnly))
        for (const QJsonValue entry : QJsonDocument::fromJson(manifest.readAll())[kind].toArray())
            assets.append({entry[u"name"].toString(), entry[u"comment"].toString()});
    return assets;
}

} // namespace

bool KitAsset::nameBeginsWithOneOf(const QStringList& prefixes) const {
    return std::any_of(prefixes.begin(), prefixes.end(),
                       [this](const QString& prefix) { return name.startsWith(prefix); });
}

const QList<KitAsset>& kitColors() {
    static const auto assets = readAssets(QStringLiteral("colors"));
    return assets;
}

const QList<KitAsset>& kitImages() {
    static const auto assets = readAssets(QStringLiteral("images"));
    return assets;
}

QColor darkColor(const QString& name) {
    return catalog().color(name.toStdString(), Appearance::dark);
}

QColor lightColor(const QString& name) {
    return catalog().color(name.toStdString(), Appearance::light);
}

const platform::Image& kitImage(const QString& name) {
    return catalog().image(name.toStdString());
}

QString colorName(const QColor& color) {
    if (color.alpha() == 0)
        return QStringLiteral("clear");
    const auto& colors = kitColors();
    const auto known = std::find_if(colors.begin(), colors.end(), [&](const KitAsset& asset) {
        return catalog().color(asset.name.toStdString()).rgba() == color.rgba();
    });
    return known != colors.end() ? known->name : color.name();
}

} // namespace gallery
