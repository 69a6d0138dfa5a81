#include "Platform/Gpu/GpuDrawable.h"

#include "tests/support/GpuPicture.h"

#include <QColorSpace>
#include <QColorTransform>

#include <gtest/gtest.h>

#include <cmath>

using platform::ColorSpace;
using platform::GpuDrawable;

namespace {

class GpuDrawableTest : public testing::Test {
protected:
    void SetUp() override { NOTELOFT_REQUIRE_GPU(); }
};

double encoded(double linear) {
    return linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

std::array<int, 3> channels(QRgb color) {
    return {qRed(color), qGreen(color), qBlue(color)};
}

} // namespace

TEST_F(GpuDrawableTest, ConvertsDisplayP3) {
    using Transfer = QColorSpace::TransferFunction;
    const auto toSRGB = QColorSpace(QColorSpace::Primaries::DciP3D65, Transfer::Linear)
                            .transformationToColorSpace(QColorSpace(QColorSpace::SRgb));

    struct Case {
        const char* body;
        QColor linear;
    };

    for (const auto& [body, linear] :
         {Case{"color = vec4(0.5, 0.4, 0.3, 1.0);", QColor::fromRgbF(0.5F, 0.4F, 0.3F)},
          Case{"color = vec4(0.1, 0.5, 0.2, 1.0);", QColor::fromRgbF(0.1F, 0.5F, 0.2F)},
          Case{"color = vec4(0.2, 0.1, 0.6, 1.0);", QColor::fromRgbF(0.2F, 0.1F, 0.6F)},
          Case{"color = vec4(1.0);", QColor(Qt::white)},
          Case{"color = vec4(0.0, 1.0, 0.0, 1.0);", QColor::fromRgbF(0, 1, 0)}}) {
        GpuPicture picture(GpuPicture::pipeline(body), {8, 8}, ColorSpace::extendedLinearDisplayP3);
        const QRgb expected = toSRGB.map(linear).rgba();
        const QRgb shown = picture.draw().pixel(4, 4);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(channels(shown).at(i), channels(expected).at(i), 2) << body << " channel " << i;
    }
}

TEST_F(GpuDrawableTest, ReadBackShowsThisFrameOrTheOneBefore) {
    const auto seedAsGray = GpuPicture::pipeline("color = vec4(vec3(float(seed) / 10.0), 1.0);");
    const auto step = [](std::uint32_t seed) {
        return static_cast<int>(std::lround(255 * encoded(seed / 10.0)));
    };
    GpuPicture now(seedAsGray, {5, 3}, ColorSpace::extendedLinearSRGB, GpuDrawable::ReadBack::immediate);
    GpuPicture late(seedAsGray, {5, 3}, ColorSpace::extendedLinearSRGB, GpuDrawable::ReadBack::oneFrameLate);
    EXPECT_NEAR(qGreen(late.draw(9).pixel(4, 2)), step(9), 1) << "the first frame is shown at once";
    std::uint32_t before = 9;
    for (const std::uint32_t seed : {1, 5, 2, 8, 3}) {
        EXPECT_NEAR(qGreen(now.draw(seed).pixel(4, 2)), step(seed), 1);
        EXPECT_NEAR(qGreen(late.draw(seed).pixel(4, 2)), step(before), 1);
        before = seed;
    }
}

TEST_F(GpuDrawableTest, HandedOutPicturesStayAsTheyWere) {
    GpuPicture picture(GpuPicture::pipeline("color = vec4(vec3(float(seed)), 1.0);"), {4, 4});
    const QImage white = picture.draw(1);
    picture.draw(0);
    EXPECT_EQ(white.pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_FALSE(white.hasAlphaChannel());
}

TEST_F(GpuDrawableTest, EveryFrameBeginsBlack) {
    GpuPicture picture(GpuPicture::pipeline("if (gl_FragCoord.x > float(seed)) discard; color = vec4(1.0);"),
                       {8, 8});
    EXPECT_EQ(picture.draw(8).pixel(6, 4), qRgb(255, 255, 255));
    EXPECT_EQ(picture.draw(4).pixel(6, 4), qRgb(0, 0, 0));
}
