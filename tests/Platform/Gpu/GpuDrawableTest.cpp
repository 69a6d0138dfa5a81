#include "Platform/Gpu/GpuDrawable.h"

#include "tests/support/GpuPicture.h"

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

} // namespace

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
