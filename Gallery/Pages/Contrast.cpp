#include "Gallery/Pages/Contrast.h"

#include <algorithm>
#include <cmath>

namespace gallery {

namespace {

double linear(double channel) {
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

} // namespace

double contrastRatio(const QColor& a, const QColor& b) {
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace gallery
