#include "Platform/Gpu/ScreenEncoding.h"

#include "tests/support/GpuPicture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace platform;

constexpr QSize size(64, 32);

/// What the view shows of a fragment function that does `statement`.
QImage drawn(const char* statement, ColorSpace space = ColorSpace::extendedLinearSRGB) {
    return GpuPicture(GpuPicture::pipeline(statement), size, space).draw();
}

double encoded(double linear) {
    return 255 * (linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055);
}

class ScreenEncoding : public testing::Test {
protected:
    void SetUp() override { NOTELOFT_REQUIRE_GPU(); }
};

TEST_F(ScreenEncoding, KeepsPixelsWhereTheFunctionSeesThem) {
    const QImage image = drawn("color = vec4(gl_FragCoord.x < 16.0, gl_FragCoord.y < 8.0, 0.0, 1.0);");
    EXPECT_EQ(image.pixelColor(0, 0), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(0, size.height() - 1), QColor(255, 255, 0));
    EXPECT_EQ(image.pixelColor(size.width() - 1, size.height() - 8), QColor(0, 255, 0));
    EXPECT_EQ(image.pixelColor(size.width() - 1, size.height() - 9), QColor(0, 0, 0));
}

// Half a step of rounding, half a step of dither, a quarter of a step of approximation.
TEST_F(ScreenEncoding, FollowsTheStandard) {
    const QImage image =
        drawn("float x = (gl_FragCoord.x - 0.5) / 63.0; color = vec4(vec3(x * x * x), 1.0);");
    for (int x = 0; x < size.width(); ++x)
        for (int y = 0; y < size.height(); ++y)
            EXPECT_NEAR(image.pixelColor(x, y).red(), encoded(std::pow(x / 63.0, 3)), 1.25) << x << ", " << y;
}

TEST_F(ScreenEncoding, ClipsAndConvertsTheGamut) {
    EXPECT_EQ(drawn("color = vec4(-1.0, 7.0, 1.0, 0.0);").pixelColor(5, 5), QColor(0, 255, 255));
    const auto space = ColorSpace::extendedLinearDisplayP3;
    EXPECT_EQ(drawn("color = vec4(1.0, 1.0, 1.0, 1.0);", space).pixelColor(5, 5), QColor(255, 255, 255));
    // Within sRGB: linear sRGB (0.5, 0.2, 0.1) in Display P3.
    const QColor inside = drawn("color = vec4(0.44674, 0.20996, 0.11407, 1.0);", space).pixelColor(5, 5);
    EXPECT_NEAR(inside.red(), encoded(0.5), 1.0);
    EXPECT_NEAR(inside.green(), encoded(0.2), 1.0);
    EXPECT_NEAR(inside.blue(), encoded(0.1), 1.0);
}

} // namespace
