#include "Platform/Graphics/DropShadow.h"

#include "Platform/Controls/ShadowedLabel.h"
#include "tests/support/Pixels.h"

#include <gtest/gtest.h>

#include <cmath>

using platform::DropShadow;
using platform::ShadowedLabel;
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

TEST(DropShadow, IsHardWithoutARadius) {
    for (const int scale : {1, 2}) {
        const QImage result = withDropShadow(square(scale), {QColor(255, 0, 0, 102), 0, {3, 12}});
        ASSERT_EQ(result.size(), QSize(60, 60) * scale);
        EXPECT_EQ(result.devicePixelRatio(), scale);
        for (int y = 0; y < 60 * scale; ++y)
            for (int x = 0; x < 60 * scale; ++x) {
                const bool inSquare = QRect(25 * scale, 25 * scale, 10 * scale, 10 * scale).contains(x, y);
                const bool inShadow = QRect(28 * scale, 37 * scale, 10 * scale, 10 * scale).contains(x, y);
                const QRgb expected = inSquare   ? 0xffffffff
                                      : inShadow ? qPremultiply(qRgba(255, 0, 0, 102))
                                                 : 0;
                ASSERT_LE(difference(result.pixel(x, y), expected), 1) << x << ", " << y;
            }
    }
}

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

TEST(ShadowedLabel, CastsItsShadowsBelowItsText) {
    ShadowedLabel label(QStringLiteral("||||"), Qt::white, {{QColor(255, 0, 0), 0, {0, 24}}}, 24);
    ShadowedLabel plain(QStringLiteral("||||"), Qt::white, {}, 24);
    for (ShadowedLabel* each : {&label, &plain}) {
        QFont font = each->font();
        font.setPixelSize(40);
        font.setBold(true);
        each->setFont(font);
        each->setAttribute(Qt::WA_TranslucentBackground);
        each->resize(each->sizeHint());
    }
    const QImage text = picture(plain);
    const QImage shadowed = picture(label);
    const qreal scale = text.devicePixelRatio();
    ASSERT_EQ(text.size(), shadowed.size());
    const int shift = static_cast<int>(std::round(24 * scale));
    int tested = 0;
    for (int y = 0; y + shift < text.height(); ++y)
        for (int x = 0; x < text.width(); ++x) {
            if (qAlpha(text.pixel(x, y)) < 255)
                continue;
            EXPECT_EQ(shadowed.pixel(x, y), 0xffffffff) << "the text covers all shadows";
            if (const QRgb below = text.pixel(x, y + shift); qAlpha(below) == 0) {
                EXPECT_EQ(qBlue(shadowed.pixel(x, y + shift)), 0);
                ++tested;
            }
        }
    EXPECT_GT(tested, 10);
}

TEST(ShadowedLabel, FollowsItsTextFontAndSize) {
    ShadowedLabel label(QStringLiteral("one"), Qt::red, {}, 4);
    label.resize(80, 40);
    const QImage one = picture(label);
    label.setText(QStringLiteral("two"));
    const QImage two = picture(label);
    EXPECT_GT(difference(one, two), 100);
    QFont font = label.font();
    font.setPixelSize(30);
    label.setFont(font);
    EXPECT_GT(difference(two, picture(label)), 100);
    const QImage narrow = picture(label);
    label.resize(120, 40);
    const QImage wide = picture(label).copy(0, 0, narrow.width(), narrow.height());
    EXPECT_GT(difference(narrow, wide), 100) << "the text stays in the middle";
    EXPECT_EQ(label.sizeHint().height(), QFontMetrics(font).height() + 8);
}
