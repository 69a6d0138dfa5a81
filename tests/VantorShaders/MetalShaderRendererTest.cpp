#include "VantorShaders/MetalShaderRenderer.h"

#include "VantorShaders/PipelineBuilder.h"
#include "VantorShaders/resource_bundle_accessor.h"
#include "tests/support/GpuPicture.h"

#include <gtest/gtest.h>

#include <thread>

using namespace std::chrono_literals;
using platform::GpuDevice;
using platform::GpuView;
using vantor::MetalShaderRenderer;

namespace {

const QString vertexShader = QStringLiteral("audioWaveformVertexShader");
const QString fragmentShader = QStringLiteral("audioWaveformFragmentShader");

class MetalShaderRendererTest : public testing::Test {
protected:
    void SetUp() override {
        NOTELOFT_REQUIRE_GPU();
        m_view.resize(80, 60);
        m_view.setDevice(GpuDevice::systemDefault());
    }

    MetalShaderRenderer makeRenderer() {
        return {m_view, QStringLiteral("Main"), vertexShader, fragmentShader};
    }

    GpuView m_view;
};

} // namespace

TEST_F(MetalShaderRendererTest, ClockLeavesOutEveryPause) {
    auto renderer = makeRenderer();
    EXPECT_LT(renderer.time(), 0.5F);
    EXPECT_GE(renderer.time(), 0.0F);
    const float start = renderer.time();
    std::this_thread::sleep_for(30ms);
    EXPECT_GE(renderer.time() - start, 0.03F) << "seconds";

    for (const auto pause : {10s, 25s}) {
        const float before = renderer.time();
        renderer.pauseTime = MetalShaderRenderer::Clock::now() - pause;
        renderer.resumeClock();
        EXPECT_FALSE(renderer.pauseTime.has_value());
        EXPECT_NEAR(before - renderer.time(), static_cast<float>(pause.count()), 0.5);
    }
    const float before = renderer.time();
    renderer.resumeClock();
    EXPECT_NEAR(renderer.time(), before, 0.5) << "no pause, nothing to leave out";
}

TEST_F(MetalShaderRendererTest, ErrorsArePassedOn) {
    const auto make = [this](const QString& vertex, const QString& fragment) {
        const MetalShaderRenderer renderer(m_view, QStringLiteral("Main"), vertex, fragment);
    };
    EXPECT_THROW(make(QStringLiteral("none"), fragmentShader), platform::GpuError);
    EXPECT_THROW(make(vertexShader, QStringLiteral("none")), platform::GpuError);
    EXPECT_THROW(make(fragmentShader, fragmentShader), platform::GpuError);
    EXPECT_NO_THROW(make(vertexShader, fragmentShader));
    EXPECT_EQ(vantor::makePipelineState(*m_view.device(), vertexShader, fragmentShader),
              vantor::makePipelineState(*m_view.device(), vertexShader, fragmentShader));
}

TEST_F(MetalShaderRendererTest, DrawsOnTheMainThreadOnly) {
    auto renderer = makeRenderer();
    EXPECT_DEATH(std::thread([&] { renderer.draw(m_view); }).join(), "must run on the main thread");
    EXPECT_DEATH(std::thread([&] { renderer.drawableSizeWillChange(m_view, {}); }).join(),
                 "must run on the main thread");
}

TEST(GpuDevicePreparation, IsFinishedBeforeTheDeviceIsUsed) {
    const auto first = MetalShaderRenderer::prepare(vertexShader, fragmentShader);
    const auto second = MetalShaderRenderer::prepare(vertexShader, fragmentShader);
    const auto device = GpuDevice::systemDefault();
    EXPECT_EQ(GpuDevice::systemDefault(), device);
    if (!device)
        GTEST_SKIP() << "this machine can make no OpenGL context";
    EXPECT_NO_THROW(vantor::makePipelineState(*device, vertexShader, fragmentShader));
}
