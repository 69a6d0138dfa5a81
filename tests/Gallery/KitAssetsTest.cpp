#include "Gallery/Pages/KitAssets.h"
#include "Gallery/Pages/Contrast.h"
#include "Platform/Graphics/AssetCatalog.h"
#include "Tidepool/Palette/resource_bundle_accessor.h"

#include <gtest/gtest.h>

using gallery::contrastRatio;
using gallery::lightColor;
using platform::Appearance;

namespace {

QImage pixels(const QString& name, Appearance appearance) {
    const auto& catalog = platform::AssetCatalog::of(tidepool::resourceBundle());
    const auto& image = catalog.image(name.toStdString(), appearance);
    return image.bitmap(image.size(), 2);
}

/// What the drawing covers, with its shadow and its glow.
QRect extent(const QImage& picture) {
    QRect covered;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qAlpha(picture.pixel(x, y)) > 0)
                covered |= QRect(x, y, 1, 1);
    return covered;
}

} // namespace

TEST(KitAssets, LightDrawingsHaveTheShapeOfTheDarkOnes) {
    ASSERT_GT(gallery::kitImages().size(), 50);
    for (const auto& asset : gallery::kitImages()) {
        const QImage dark = pixels(asset.name, Appearance::dark);
        const QImage light = pixels(asset.name, Appearance::light);
        EXPECT_EQ(extent(light), extent(dark)) << asset.name.toStdString();
        // A template has no colour of its own, and a pointer has to show on everything.
        const bool servesBoth =
            gallery::kitImage(asset.name).isTemplate() || asset.name.startsWith(u"cursor-");
        EXPECT_EQ(light == dark, servesBoth) << asset.name.toStdString();
    }
}

TEST(KitAssets, LightColorsAreLegible) {
    const QColor window = lightColor(QStringLiteral("Background/Normal"));
    const QStringList legible{QStringLiteral("Grey 50%"),  QStringLiteral("Grey 60%"),
                              QStringLiteral("Grey 70%"),  QStringLiteral("Grey 85%"),
                              QStringLiteral("Grey 100%"), QStringLiteral("Error")};
    for (const auto& asset : gallery::kitColors()) {
        if (legible.contains(asset.name) || asset.name.startsWith(u"Vantor/")) {
            EXPECT_GE(contrastRatio(lightColor(asset.name), window), 4.5) << asset.name.toStdString();
        }
    }
    const QColor highlight = lightColor(QStringLiteral("Highlight/System"));
    EXPECT_GE(contrastRatio(highlight, lightColor(QStringLiteral("Background/Darkest"))), 3) << "as a ring";
    EXPECT_GE(contrastRatio(highlight, lightColor(QStringLiteral("Grey 100%"))), 4.5) << "under text";
}

TEST(Contrast, IsThatOfTheGuideline) {
    EXPECT_DOUBLE_EQ(contrastRatio(Qt::black, Qt::white), 21);
    EXPECT_DOUBLE_EQ(contrastRatio(Qt::red, Qt::red), 1);
    EXPECT_NEAR(contrastRatio(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.005);
}
