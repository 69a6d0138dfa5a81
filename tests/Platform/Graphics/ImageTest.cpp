#include "Platform/Graphics/Image.h"
#include "tests/support/Pixels.h"

#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using platform::Image;

namespace {

constexpr int extent = 12;
constexpr int cap = 4;

/// Each of the nine parts has its own colour.
QRgb partColor(int column, int row) {
    constexpr std::array<QRgb, 9> colors{0xffff0000, 0xff00ffff, 0xff00ff00, 0xff808080, 0xffffffff,
                                         0xff404040, 0xff0000ff, 0xffff00ff, 0xffffff00};
    return colors.at(static_cast<std::size_t>(3 * row + column));
}

int partOf(double position, double length) {
    return position < cap ? 0 : position < length - cap ? 1 : 2;
}

/// Nothing for a pixel on the border of two parts, which may show either of them or a mixture.
std::optional<int> partOfPixel(int pixel, double scale, int length) {
    const int first = partOf(pixel / scale + 0.01, length);
    const int last = partOf((pixel + 1) / scale - 0.01, length);
    return first == last ? std::optional(first) : std::nullopt;
}

/// A bitmap that is made smaller mixes neighbours a little.
int tolerance(double scale) {
    return scale == std::floor(scale) ? 0 : 60;
}

class ImageTest : public testing::TestWithParam<double> {
protected:
    /// The path of a picture whose pixels are `color(x, y)`.
    template <typename Color>
    QString write(const char* name, QSize size, Color color) const {
        QImage image(size, QImage::Format_ARGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                image.setPixel(x, y, color(x, y));
        const QString path = m_root.filePath(QLatin1StringView(name));
        EXPECT_TRUE(image.save(path, "PNG"));
        return path;
    }

    Image::Description frame() const {
        Image::Description description{
            .size = QSizeF(extent, extent), .capInsets = QMarginsF(cap, cap, cap, cap), .files = {}};
        for (const int scale : {1, 2, 3}) {
            const auto name = "frame@" + std::to_string(scale);
            description.files[scale] =
                write(name.c_str(), QSize(extent, extent) * scale, [scale](int x, int y) {
                    return partColor(partOf((x + 0.5) / scale, extent), partOf((y + 0.5) / scale, extent));
                });
        }
        return description;
    }

    QTemporaryDir m_root;
};

QImage canvas(QSize size, qreal scale) {
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    return image;
}

} // namespace

TEST_P(ImageTest, CornersKeepTheirSizeAndTheRestFillsTheTarget) {
    const double scale = GetParam();
    const QSize size(40, 28);
    const QImage picture = Image(frame()).bitmap(size, scale);
    ASSERT_EQ(picture.size(), (QSizeF(size) * scale).toSize());
    EXPECT_EQ(picture.devicePixelRatio(), scale);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const auto column = partOfPixel(x, scale, size.width());
            const auto row = partOfPixel(y, scale, size.height());
            if (!column || !row)
                continue;
            ASSERT_LE(difference(picture.pixel(x, y), partColor(*column, *row)), tolerance(scale))
                << "at " << x << ", " << y;
        }
}

TEST_P(ImageTest, SmallTargetsHaveAllCornersAndNoHoles) {
    const double scale = GetParam();
    for (const QSize size : {QSize(6, 6), QSize(5, 20), QSize(30, 3), QSize(2, 2)}) {
        const QImage picture = Image(frame()).bitmap(size, scale);
        const int right = picture.width() - 1;
        const int bottom = picture.height() - 1;
        EXPECT_LE(difference(picture.pixel(0, 0), partColor(0, 0)), tolerance(scale));
        EXPECT_LE(difference(picture.pixel(right, 0), partColor(2, 0)), tolerance(scale));
        EXPECT_LE(difference(picture.pixel(0, bottom), partColor(0, 2)), tolerance(scale));
        EXPECT_LE(difference(picture.pixel(right, bottom), partColor(2, 2)), tolerance(scale));
        for (int y = 0; y <= bottom; ++y)
            for (int x = 0; x <= right; ++x)
                ASSERT_EQ(qAlpha(picture.pixel(x, y)), 255) << size.width() << ": " << x << ", " << y;
    }
}

TEST_P(ImageTest, IsDrawnOnWholePixels) {
    const double scale = GetParam();
    const Image image(frame());
    for (const QRectF target :
         {QRectF(3.3, 2.6, 20.2, 12.1), QRectF(7, 9, 21, 15), QRectF(0.49, 0.51, 13, 13)}) {
        QImage drawn = canvas({48, 40}, scale);
        QPainter painter(&drawn);
        image.draw(painter, target);
        painter.end();
        int solid = 0;
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x) {
                const int alpha = qAlpha(drawn.pixel(x, y));
                ASSERT_TRUE(alpha == 0 || alpha == 255) << alpha << " at " << x << ", " << y;
                solid += alpha == 255 ? 1 : 0;
            }
        const auto pixels = [scale](double from, double to) {
            return static_cast<int>(std::round(to * scale) - std::round(from * scale));
        };
        EXPECT_EQ(solid, pixels(target.left(), target.right()) * pixels(target.top(), target.bottom()));
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, ImageTest, testing::Values(1.0, 1.25, 1.5, 2.0, 3.0));

using ImageFileTest = ImageTest;

TEST_F(ImageFileTest, TilesWithoutSeams) {
    const auto pattern = [](int x, int y) { return qRgb(10 * (x % 5), 40 * (y % 5), 99); };
    const Image image({.size = QSizeF(5, 5),
                       .capInsets = {},
                       .resizingMode = Image::ResizingMode::tile,
                       .files = {{1, write("tile", {5, 5}, pattern)}}});
    const QImage picture = image.bitmap({33, 17}, 1);
    for (int y = 0; y < 17; ++y)
        for (int x = 0; x < 33; ++x)
            ASSERT_EQ(picture.pixel(x, y), pattern(x, y)) << x << ", " << y;
}

TEST_F(ImageFileTest, KeepsWhatItHasDrawn) {
    const Image image(frame());
    const QImage first = image.bitmap({30, 20}, 2);
    const Image copy = image; // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(copy.bitmap({30, 20}, 2).cacheKey(), first.cacheKey());
    EXPECT_NE(image.bitmap({30, 20}, 1.5).size(), first.size());
    const QImage plain = image.bitmap({25, 25}, 1);
    const QImage finer = image.bitmap({20, 20}, 1.25);
    ASSERT_EQ(plain.size(), finer.size());
    EXPECT_EQ(finer.devicePixelRatio(), 1.25) << "as many pixels, another scale";
    for (int width = 10; width < 210; ++width)
        EXPECT_EQ(image.bitmap(QSizeF(width, 20), 2).width(), 2 * width);
    EXPECT_EQ(difference(image.bitmap({30, 20}, 2), first), 0);
}

TEST_F(ImageFileTest, OnlyATemplateTakesAColor) {
    auto description = frame();
    description.files = {
        {1, write("shape", {12, 12}, [](int x, int) { return qRgba(200, 100, 0, 20 * x); })}};
    const Image plain(description);
    EXPECT_EQ(difference(plain.tinted(Qt::red).bitmap({12, 12}, 1), plain.bitmap({12, 12}, 1)), 0);

    description.isTemplate = true;
    const Image shape(description);
    const Image tinted = shape.tinted(QColor(0, 0, 255, 128));
    EXPECT_TRUE(shape.isTemplate());
    EXPECT_FALSE(tinted.isTemplate());
    EXPECT_EQ(difference(tinted.tinted(Qt::red).bitmap({12, 12}, 1), tinted.bitmap({12, 12}, 1)), 0);
    const QImage picture = tinted.bitmap({12, 12}, 1);
    for (int x = 1; x < 12; ++x) {
        EXPECT_NEAR(qAlpha(picture.pixel(x, 5)), 10 * x, 1);
        EXPECT_EQ(picture.pixel(x, 5) & 0xffff00, 0U) << "nothing of the shape's own colour is left";
    }
    EXPECT_NEAR(qRed(qUnpremultiply(shape.bitmap({12, 12}, 1).pixel(11, 5))), 200, 1)
        << "the template itself stays as it was";
}
