#include "Platform/Graphics/DropShadow.h"

#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

#include <cmath>

using platform::DropShadow;
using platform::withDropShadow;

namespace {

/// A white square of 10 points in the middle of 60.
QImage square(int scale) {
    QImage image(60 * scale, 60 * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int y = 25 * scale; y < 35 * scale; ++y)
        for (int x = 25 * scale; x < 35 * scale; ++x)
            image.setPixel(x, y, 0xffffffff);
    image.setDevicePixelRatio(scale);
    return image;
}

double alphaSum(const QImage& image) {
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y));
    return sum;
}

} // namespace

TEST(DropShadow, IsSoftAndKeepsItsWeight) {
    for (const int scale : {1, 2, 3}) {
        constexpr double radius = 8;
        const QImage result = withDropShadow(square(scale), {Qt::black, radius, {0, 0}});
        // Across the middle of an edge the profile is the integral of a Gauss curve of half the radius.
        const int row = 30 * scale;
        const auto expected = [&](double x) {
            const double root = std::sqrt(2.0) * radius / 2;
            const auto along = [&](double t) {
                return 0.5 * (std::erf((35 - t) / root) - std::erf((25 - t) / root));
            };
            return 255 * along(x) * along(30);
        };
        for (int x = 0; x < 25 * scale; ++x)
            EXPECT_NEAR(qAlpha(result.pixel(x, row)), expected((x + 0.5) / scale), 3) << scale << ": " << x;
        const QImage shadowOnly = withDropShadow(square(scale), {Qt::black, radius, {0, 60}});
        EXPECT_LT(alphaSum(shadowOnly), 1.35 * alphaSum(square(scale))) << "what falls outside is lost";
    }
}
