#include "VantorShaders/MetalShaderViewController.h"

#include "Platform/Gpu/GpuDevice.h"
#include "Platform/Windows/WindowNotifications.h"
#include "VantorShaders/MetalShaderRenderer.h"
#include "tests/support/GpuPicture.h"
#include "tests/support/Pixels.h"

#include <QTest>

#include <gtest/gtest.h>

#include <future>
#include <memory>
#include <stdexcept>

using vantor::MetalShaderRenderer;
using vantor::MetalShaderViewController;

namespace {

struct Effect {
    Effect()
        : view(new QWidget(&window)),
          controller(view, QStringLiteral("Main"), QStringLiteral("audioWaveformVertexShader"),
                     QStringLiteral("audioWaveformFragmentShader")) {
        window.resize(200, 150);
        view->setGeometry(20, 10, 120, 90);
    }

    void activate() {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QWidget window;
    QWidget* view;
    MetalShaderViewController controller;
};

class MetalShaderViewControllerTest : public testing::Test {
protected:
    void SetUp() override { NOTELOFT_REQUIRE_GPU(); }
};

/// Ends the process with success if a machine without graphics shows an empty view that works.
[[noreturn]] void runWithoutGraphics() {
    qputenv("__EGL_VENDOR_LIBRARY_FILENAMES", "/dev/null");
    const auto preparation = MetalShaderRenderer::prepare(QStringLiteral("audioWaveformVertexShader"),
                                                          QStringLiteral("audioWaveformFragmentShader"));
    EXPECT_EQ(platform::GpuDevice::systemDefault(), nullptr);
    Effect effect;
    QWidget other;
    const QImage before = picture(effect.window);
    for (int appearance = 0; appearance < 2; ++appearance) {
        effect.activate();
        QTest::qWait(50);
        EXPECT_NE(effect.controller.metalKitView(), nullptr);
        EXPECT_EQ(effect.controller.renderer(), nullptr);
        EXPECT_EQ(difference(picture(effect.window), before), 0);
        effect.controller.metalKitView()->setNeedsDisplay();
        effect.controller.handleDidResignKey(&effect.window);
        effect.controller.handleDidBecomeKey(&effect.window);
        effect.window.resize(210, 160);
        effect.window.resize(200, 150);
        effect.window.hide();
    }
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
}

/// Makes the device on another thread, which waits until `finish` is called.
class SlowDevice {
public:
    SlowDevice() {
        m_preparation =
            platform::GpuDevice::prepare([this](platform::GpuDevice&) { m_gate.get_future().wait(); });
    }

    void finish() {
        m_gate.set_value();
        m_preparation.reset();
        QTest::qWait(50);
    }

private:
    std::promise<void> m_gate;
    std::shared_ptr<const void> m_preparation;
};

/// Ends the process with success if the device may arrive whatever became of the view in the meantime.
[[noreturn]] void runWhileTheDeviceIsMade() {
    SlowDevice device;
    Effect shown;
    Effect hidden;
    Effect behind;
    auto destroyed = std::make_unique<Effect>();
    for (Effect* effect : {&hidden, destroyed.get(), &behind, &shown})
        effect->activate();
    EXPECT_EQ(shown.controller.renderer(), nullptr) << "the window does not wait";
    hidden.window.hide();
    destroyed.reset();
    device.finish();
    if (!platform::GpuDevice::systemDefault())
        std::_Exit(0);
    EXPECT_EQ(hidden.controller.renderer(), nullptr);
    EXPECT_NE(shown.controller.renderer(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !shown.controller.metalKitView()->image().isNull(); }));
    EXPECT_TRUE(behind.controller.metalKitView()->isPaused());
    EXPECT_NE(behind.controller.renderer(), nullptr);
    const float time = behind.controller.renderer()->time();
    QTest::qWait(100);
    behind.activate();
    EXPECT_LT(behind.controller.renderer()->time(), time + 0.05F)
        << "its clock stood still from the first moment";
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
}

/// Ends the process with success if a preparation that throws leaves a device that works.
[[noreturn]] void runAfterAFailedPreparation() {
    const auto preparation =
        platform::GpuDevice::prepare([](platform::GpuDevice&) { throw std::logic_error("any"); });
    Effect effect;
    effect.activate();
    const bool hasDevice = platform::GpuDevice::systemDefault() != nullptr;
    EXPECT_TRUE(QTest::qWaitFor([&] { return (effect.controller.renderer() != nullptr) == hasDevice; }));
    std::_Exit(testing::Test::HasFailure() ? 1 : 0);
}

} // namespace

// Nobody may have asked for the device before.
TEST(MetalShaderViewControllerStart, DeviceMayArriveAfterTheView) {
    EXPECT_EXIT(runWhileTheDeviceIsMade(), testing::ExitedWithCode(0), "");
    EXPECT_EXIT(runAfterAFailedPreparation(), testing::ExitedWithCode(0), "");
}

TEST_F(MetalShaderViewControllerTest, ViewLivesWhileItAppears) {
    Effect effect;
    EXPECT_EQ(effect.controller.metalKitView(), nullptr);
    EXPECT_EQ(effect.controller.renderer(), nullptr);
    effect.activate();
    auto* const gpuView = effect.controller.metalKitView();
    ASSERT_NE(gpuView, nullptr);
    EXPECT_EQ(gpuView->geometry(), effect.view->rect());
    EXPECT_EQ(gpuView->colorSpace(), platform::ColorSpace::extendedLinearSRGB);
    EXPECT_FALSE(gpuView->isPaused());
    EXPECT_EQ(effect.controller.renderer()->name(), QStringLiteral("Main"));
    effect.view->resize(150, 70);
    QCoreApplication::processEvents();
    EXPECT_EQ(gpuView->geometry(), QRect(0, 0, 150, 70)) << "it follows by its edges";
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const auto size = gpuView->drawableSize();
        return effect.controller.renderer()->viewportSize() ==
               std::array{float(size.width()), float(size.height())};
    }));
    effect.window.hide();
    EXPECT_EQ(effect.controller.metalKitView(), nullptr);
    EXPECT_EQ(effect.controller.renderer(), nullptr);
    EXPECT_TRUE(effect.view->findChildren<QWidget*>().isEmpty());
}

TEST_F(MetalShaderViewControllerTest, EachAppearanceBeginsAnew) {
    Effect effect;
    QSet<std::uint32_t> seeds;
    for (int appearance = 0; appearance < 3; ++appearance) {
        effect.activate();
        EXPECT_LT(effect.controller.renderer()->time(), 1.0F);
        seeds << effect.controller.renderer()->seed();
        effect.controller.renderer()->pauseTime =
            MetalShaderRenderer::Clock::now() + std::chrono::seconds(100);
        effect.window.hide();
    }
    EXPECT_GT(seeds.size(), 1);
}

TEST_F(MetalShaderViewControllerTest, MindsOnlyItsOwnWindow) {
    Effect effect;
    effect.activate();
    QWidget other;
    effect.controller.handleDidResignKey(&other);
    effect.controller.handleDidResignKey(nullptr);
    effect.controller.handleDidResignKey(effect.view);
    EXPECT_FALSE(effect.controller.metalKitView()->isPaused());
    EXPECT_FALSE(effect.controller.renderer()->pauseTime.has_value());
    effect.controller.handleDidResignKey(&effect.window);
    effect.controller.handleDidBecomeKey(&other);
    EXPECT_TRUE(effect.controller.metalKitView()->isPaused());
    effect.window.hide();
    effect.controller.handleDidBecomeKey(&effect.window);
    effect.controller.handleDidResignKey(&effect.window);
    EXPECT_EQ(effect.controller.metalKitView(), nullptr);
}

TEST_F(MetalShaderViewControllerTest, ViewMayGoFirst) {
    Effect effect;
    effect.activate();
    delete effect.view;
    EXPECT_EQ(effect.controller.view(), nullptr);
    EXPECT_EQ(effect.controller.metalKitView(), nullptr);
    effect.controller.handleDidResignKey(&effect.window);
    QTest::qWait(30);
}

TEST(MetalShaderViewControllerWithoutGraphics, ShowsAnEmptyView) {
    EXPECT_EXIT(runWithoutGraphics(), testing::ExitedWithCode(0), "");
}
