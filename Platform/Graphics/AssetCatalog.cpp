#include "Platform/Graphics/AssetCatalog.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Graphics/DisplayP3.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>

namespace platform {

namespace {

/// "#rrggbb" or "#rrggbbaa".
QColor parseColor(const QString& text, bool isDisplayP3) {
    bool ok = false;
    const QString digits = text.size() == 7 ? text + u"ff" : text;
    const quint32 value = digits.mid(1).toUInt(&ok, 16);
    if (!ok || digits.size() != 9)
        return {};
    const auto part = [value](int shift) { return static_cast<float>((value >> shift) & 0xffU) / 255.0F; };
    return isDisplayP3 ? displayP3(part(24), part(16), part(8), part(0))
                       : QColor::fromRgbF(part(24), part(16), part(8), part(0));
}

std::map<int, QString> bitmapFiles(const QJsonObject& paths, const Bundle& bundle) {
    std::map<int, QString> files;
    for (auto path = paths.begin(); path != paths.end(); ++path)
        files[path.key().toInt()] = bundle.path(path->toString());
    return files;
}

} // namespace

AssetCatalog& AssetCatalog::of(const Bundle& bundle) {
    static std::map<QString, std::unique_ptr<AssetCatalog>> catalogs;
    auto& catalog = catalogs[bundle.directory()];
    if (!catalog)
        catalog = std::make_unique<AssetCatalog>(bundle);
    return *catalog;
}

AssetCatalog::AssetCatalog(const Bundle& bundle) {
    QFile file(bundle.path(QStringLiteral("Assets.json")));
    if (!file.open(QIODevice::ReadOnly))
        return;
    const auto manifest = QJsonDocument::fromJson(file.readAll()).object();
    const auto colors = manifest[u"colors"].toArray();
    for (const auto& color : colors)
        addColor(color.toObject());
    const auto images = manifest[u"images"].toArray();
    for (const auto& image : images)
        addImage(image.toObject(), bundle);
}

void AssetCatalog::addColor(const QJsonObject& description) {
    const bool isDisplayP3 = description[u"space"].toString() == u"display-p3";
    m_colors[description[u"name"].toString().toStdString()] = {
        parseColor(description[u"light"].toString(), isDisplayP3),
        parseColor(description[u"dark"].toString(), isDisplayP3)};
}

void AssetCatalog::addImage(const QJsonObject& description, const Bundle& bundle) {
    Image::Description image;
    image.name = description[u"name"].toString();
    const auto size = description[u"size"].toArray();
    image.size = QSizeF(size[0].toDouble(), size[1].toDouble());
    // The manifest's order is top, left, bottom, right.
    const auto caps = description[u"capInsets"].toArray();
    image.capInsets = {caps[1].toDouble(), caps[0].toDouble(), caps[3].toDouble(), caps[2].toDouble()};
    image.resizingMode = description[u"resizing"].toString() == u"tile" ? Image::ResizingMode::tile
                                                                        : Image::ResizingMode::stretch;
    image.isTemplate = description[u"template"].toBool();
    image.files = bitmapFiles(description[u"files"].toObject(), bundle);
    const Image dark(image);
    image.files = bitmapFiles(description[u"lightFiles"].toObject(), bundle);
    m_images[image.name.toStdString()] = {image.files.empty() ? dark : Image(image), dark};
}

const QColor& AssetCatalog::color(std::string_view name, Appearance appearance) const {
    static const QColor none;
    const auto found = m_colors.find(name);
    return found == m_colors.end() ? none : found->second[static_cast<std::size_t>(appearance)];
}

const Image& AssetCatalog::image(std::string_view name, Appearance appearance) const {
    static const Image none;
    const auto found = m_images.find(name);
    return found == m_images.end() ? none : found->second[static_cast<std::size_t>(appearance)];
}

} // namespace platform
