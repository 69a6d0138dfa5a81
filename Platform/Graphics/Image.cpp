#include "Platform/Graphics/Image.h"

#include "Platform/Graphics/Bitmap.h"
#include "Platform/Graphics/DevicePixels.h"
#include "Platform/Graphics/NineSlice.h"
#include "Platform/Graphics/PreparedPicture.h"

#include <QCache>
#include <QPainter>

#include <cmath>
#include <utility>

namespace platform {

namespace {

/// What a drawn picture depends on; the scale in thousandths.
struct DrawnKey {
    QSize pixels;
    int scale;
    std::optional<QRgb> tint;
    std::optional<Recoloring> recoloring;
    float opacity;

    bool operator==(const DrawnKey&) const = default;
};

std::size_t qHash(const DrawnKey& key, std::size_t seed = 0) {
    return qHashMulti(seed, key.pixels.width(), key.pixels.height(), key.scale, key.tint.value_or(0),
                      key.recoloring ? key.recoloring->to : 0, key.opacity);
}

constexpr int drawnPictures = 64;

void tint(QImage& image, QRgb color) {
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), QColor::fromRgba(color));
}

void fade(QImage& image, float opacity) {
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(image.rect(), QColor::fromRgbF(0, 0, 0, opacity));
}

} // namespace

struct Image::Data {
    Description description;
    std::map<int, QImage> bitmaps;
    QCache<DrawnKey, PreparedPicture> drawn{drawnPictures};

    const QImage& representation(qreal scale);
    QImage render(const DrawnKey& key, qreal scale);
};

/// The smallest bitmap that need not be enlarged, else the largest.
const QImage& Image::Data::representation(qreal scale) {
    auto file = description.files.lower_bound(static_cast<int>(std::ceil(scale - 0.01)));
    if (file == description.files.end())
        --file;
    auto [bitmap, isNew] = bitmaps.try_emplace(file->first);
    if (isNew)
        bitmap->second = readBitmap(file->second);
    return bitmap->second;
}

QImage Image::Data::render(const DrawnKey& key, qreal scale) {
    const QImage& source = representation(scale);
    const QSize natural = (description.size * scale).toSize();
    const QImage fitted = source.size() == natural || source.isNull()
                              ? source
                              : source.scaled(natural, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const auto caps = (description.capInsets * scale).toMargins();
    QImage result = drawNineSlice(fitted, caps, key.pixels, description.resizingMode == ResizingMode::tile);
    if (key.recoloring)
        recolor(result, *key.recoloring);
    if (key.tint)
        tint(result, *key.tint);
    if (key.opacity < 1)
        fade(result, key.opacity);
    return result;
}

Image::Image() = default;

Image::Image(Description description) : m_data(std::make_shared<Data>()), m_template(description.isTemplate) {
    m_data->description = std::move(description);
}

bool Image::isNull() const {
    return !m_data || m_data->description.files.empty();
}

QString Image::name() const {
    return m_data ? m_data->description.name : QString();
}

QSizeF Image::size() const {
    return m_data ? m_data->description.size : QSizeF(0, 0);
}

QMarginsF Image::capInsets() const {
    return m_data ? m_data->description.capInsets : QMarginsF();
}

Image::ResizingMode Image::resizingMode() const {
    return m_data ? m_data->description.resizingMode : ResizingMode::stretch;
}

Image Image::tinted(const QColor& color) const {
    if (!m_template)
        return *this;
    Image copy = *this;
    copy.m_tint = color.rgba();
    copy.m_template = false;
    return copy;
}

Image Image::recolored(const Recoloring& recoloring) const {
    Image copy = *this;
    if (!m_template)
        copy.m_recoloring = recoloring;
    return copy;
}

const PreparedPicture* Image::picture(QSizeF size, qreal scale, float opacity) const {
    const QSize pixels = (size * scale).toSize();
    if (isNull() || pixels.isEmpty())
        return nullptr;
    const DrawnKey key{pixels, static_cast<int>(std::lround(scale * 1000)), m_tint, m_recoloring, opacity};
    if (const PreparedPicture* known = m_data->drawn.object(key))
        return known;
    QImage drawn = m_data->render(key, scale);
    drawn.setDevicePixelRatio(scale);
    m_data->drawn.insert(key, new PreparedPicture(std::move(drawn)));
    return m_data->drawn.object(key);
}

QImage Image::bitmap(QSizeF size, qreal scale) const {
    const PreparedPicture* const drawn = picture(size, scale, 1);
    return drawn != nullptr ? drawn->image() : QImage();
}

void Image::draw(QPainter& painter, const QRectF& target, float opacity) const {
    const qreal scale = pixelsPerPoint(painter);
    const QPointF origin(onPixel(target.left(), scale), onPixel(target.top(), scale));
    const QSizeF size(onPixel(target.right(), scale) - origin.x(),
                      onPixel(target.bottom(), scale) - origin.y());
    if (const PreparedPicture* const drawn = picture(size, scale, opacity))
        drawn->draw(painter, origin);
}

} // namespace platform
