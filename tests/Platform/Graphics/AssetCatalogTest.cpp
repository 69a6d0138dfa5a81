#include "Platform/Graphics/AssetCatalog.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Graphics/DisplayP3.h"
#include "tests/support/Pixels.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using platform::Appearance;
using platform::AssetCatalog;
using platform::Bundle;

namespace {

class AssetCatalogTest : public testing::Test {
protected:
    AssetCatalogTest() { platform::setAppearance(Appearance::dark); }

    ~AssetCatalogTest() override { platform::setAppearance(Appearance::dark); }

    AssetCatalog read(const QByteArray& manifest) const {
        QFile file(m_root.filePath(QStringLiteral("Assets.json")));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(manifest);
        file.close();
        return AssetCatalog(Bundle(m_root.path()));
    }

    QTemporaryDir m_root;
};

} // namespace

TEST_F(AssetCatalogTest, ColorsFollowTheAppearance) {
    const auto catalog = read(R"({"colors": [
        {"name": "text", "light": "#102030ff", "dark": "#fedcba80", "space": "srgb"},
        {"name": "short", "light": "#000000", "dark": "#010203"},
        {"name": "broken", "light": "#12345", "dark": "white"}]})");
    EXPECT_EQ(catalog.color("text").rgba(), 0x80fedcbaU);
    EXPECT_EQ(catalog.color("short").rgba(), 0xff010203U);
    EXPECT_FALSE(catalog.color("broken").isValid());
    EXPECT_EQ(catalog.color("text", Appearance::light).rgba(), 0xff102030U);
    platform::setAppearance(Appearance::light);
    EXPECT_EQ(catalog.color("text").rgba(), 0xff102030U);
    EXPECT_FALSE(catalog.color("broken").isValid());
}

TEST_F(AssetCatalogTest, ImagesMayHaveAnotherDrawingForTheLightAppearance) {
    QImage picture(8, 8, QImage::Format_ARGB32);
    for (const auto& [file, color] : {std::pair{"dark.png", Qt::black}, {"light.png", Qt::white}}) {
        picture.fill(color);
        ASSERT_TRUE(picture.save(m_root.filePath(QLatin1StringView(file))));
    }
    const auto catalog = read(R"({"images": [
        {"name": "both", "size": [8, 8], "capInsets": [1, 2, 3, 4], "files": {"1": "dark.png"},
         "lightFiles": {"1": "light.png"}},
        {"name": "one", "size": [8, 8], "capInsets": [1, 1, 1, 1], "files": {"1": "dark.png"}}]})");
    const auto color = [&](const char* name) {
        return catalog.image(name).bitmap({20, 20}, 1).pixelColor(9, 9);
    };
    const platform::Image kept = catalog.image("both");
    EXPECT_EQ(color("both"), QColor(Qt::black));
    platform::setAppearance(Appearance::light);
    EXPECT_EQ(color("both"), QColor(Qt::white));
    EXPECT_EQ(color("one"), QColor(Qt::black)) << "serves both";
    EXPECT_EQ(catalog.image("both").capInsets(), QMarginsF(2, 1, 4, 3)) << "left, top, right, bottom";
    EXPECT_EQ(kept.bitmap({20, 20}, 1).pixelColor(9, 9), QColor(Qt::black)) << "looked up before";
}

// The expected value is that of the matrices in CSS Color 4.
TEST_F(AssetCatalogTest, DisplayP3IsConverted) {
    const auto catalog = read(R"({"colors": [
        {"name": "p3", "light": "#ffffffff", "dark": "#8040c080", "space": "display-p3"}]})");
    EXPECT_LE(difference(catalog.color("p3").rgba(), qRgba(138, 59, 199, 128)), 1);
    platform::setAppearance(Appearance::light);
    EXPECT_EQ(catalog.color("p3").rgba(), 0xffffffffU);
    EXPECT_EQ(platform::displayP3(1, 0, 0).rgba(), qRgb(255, 0, 0)) << "outside sRGB";
}
