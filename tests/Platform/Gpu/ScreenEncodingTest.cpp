#include "Platform/Gpu/CommandQueue.h"
#include "Platform/Gpu/GpuDevice.h"
#include "Platform/Gpu/GpuDrawable.h"
#include "Platform/Gpu/RenderPipeline.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using namespace platform;

constexpr QSize size(64, 32);

constexpr auto vertexSource = R"(#version 330 core
layout(location = 0) in vec2 position;
void main() { gl_Position = vec4(position, 0.0, 1.0); }
)";

/// What the view shows of a fragment function that does `statement`.
QImage drawn(const QByteArray& statement, ColorSpace space = ColorSpace::extendedLinearSRGB) {
    const auto device = GpuDevice::systemDefault();
    if (!device)
        return {};
    RenderPipelineDescriptor descriptor;
    descriptor.vertexFunction = GpuFunction{QStringLiteral("vertex"), vertexSource, {}};
    const QByteArray source =
        "#version 330 core\nlayout(location = 0) out vec4 color;\nvoid main() { " + statement + " }\n";
    descriptor.fragmentFunction = GpuFunction{QStringLiteral("fragment"), source, {}};
    const auto pipeline = device->makeRenderPipelineState(descriptor);
    GpuDrawable drawable(device, size, space, GpuDrawable::ReadBack::immediate);
    constexpr std::array<float, 8> quad{-1, -1, -1, 1, 1, -1, 1, 1};
    const auto vertices = device->makeBuffer(quad.data(), sizeof quad);
    const auto queue = device->makeCommandQueue();
    const auto buffer = queue->makeCommandBuffer();
    const auto encoder = buffer->makeRenderCommandEncoder({&drawable});
    encoder->setRenderPipelineState(*pipeline);
    encoder->setViewport({.width = size.width(), .height = size.height()});
    encoder->setVertexBuffer(*vertices, 0, 0);
    encoder->drawTriangleStrip(0, 4);
    encoder->endEncoding();
    buffer->present(drawable);
    buffer->commit();
    return drawable.image().copy();
}

double encoded(double linear) {
    return 255 * (linear <= 0.0031308 ? 12.92 * linear : 1.055 * std::pow(linear, 1 / 2.4) - 0.055);
}

class ScreenEncoding : public testing::Test {
protected:
    void SetUp() override {
        if (!GpuDevice::systemDefault())
            GTEST_SKIP() << "no device";
    }
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

TEST_F(ScreenEncoding, SpreadsWhatLiesBetweenTwoSteps) {
    const QImage image = drawn("color = vec4(vec3(20.4 / 255.0 / 12.92 * 0.5), 1.0);"); // 10.2 steps
    long sum = 0;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            sum += image.pixelColor(x, y).red();
    EXPECT_NEAR(static_cast<double>(sum) / (size.width() * size.height()), encoded(0.5 * 20.4 / 255 / 12.92),
                0.05);
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

TEST_F(ScreenEncoding, ReportsTheFunctionsOwnLines) {
    try {
        drawn("mistake;");
        FAIL() << "compiled";
    } catch (const GpuError& error) {
        EXPECT_NE(std::string(error.what()).find("0:3("), std::string::npos) << error.what();
    }
}

} // namespace
