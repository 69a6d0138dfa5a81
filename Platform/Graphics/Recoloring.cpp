#include "Platform/Graphics/Recoloring.h"

#include <algorithm>
#include <cmath>

namespace platform {

namespace {

/// How far a hue may be from the one that is replaced, of the whole circle.
constexpr float hueRange = 0.07F;
/// Below the first saturation, in parts of the replaced colour's, nothing changes; above the second all does.
constexpr float leastSaturation = 0.5F;
constexpr float fullSaturation = 0.75F;

float hueDistance(float a, float b) {
    const float distance = std::abs(a - b);
    return std::min(distance, 1 - distance);
}

QRgb mixed(QRgb a, QRgb b, float part) {
    const auto mix = [part](int x, int y) { return x + qRound(static_cast<float>(y - x) * part); };
    return qRgba(mix(qRed(a), qRed(b)), mix(qGreen(a), qGreen(b)), mix(qBlue(a), qBlue(b)), qAlpha(a));
}

QRgb recolored(QRgb pixel, const QColor& from, const QColor& to) {
    const QColor color = QColor::fromRgba(pixel);
    if (color.hsvHueF() < 0 || hueDistance(color.hsvHueF(), from.hsvHueF()) > hueRange)
        return pixel;
    const float saturation = color.hsvSaturationF() / from.hsvSaturationF();
    const float part =
        std::clamp((saturation - leastSaturation) / (fullSaturation - leastSaturation), 0.0F, 1.0F);
    const QColor other =
        QColor::fromHsvF(std::max(to.hsvHueF(), 0.0F), std::min(saturation * to.hsvSaturationF(), 1.0F),
                         color.valueF(), color.alphaF());
    return mixed(pixel, other.rgba(), part);
}

} // namespace

void recolor(QImage& image, const Recoloring& recoloring) {
    const QColor from(recoloring.from);
    const QColor to(recoloring.to);
    for (int y = 0; y < image.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line,
                       [&](QRgb pixel) { return qPremultiply(recolored(qUnpremultiply(pixel), from, to)); });
    }
}

} // namespace platform
