#pragma once

#include "Platform/Gpu/CommandQueue.h"
#include "Platform/Gpu/GpuView.h"
#include "VantorShaders/RendererError.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>

namespace vantor {

/// Runs one vertex and one fragment function of the module's shader library over a whole view. The fragment
/// function gets, by index: 0, the view's size in pixels (two floats); 1, the seed (uint); 2, the time in
/// seconds (float). It writes extended linear sRGB. Main thread.
class MetalShaderRenderer : public platform::GpuViewDelegate {
public:
    using Clock = std::chrono::steady_clock;

    /// Throws `RendererError` if the view has no device, `platform::GpuError` if the functions do not make a
    /// pipeline.
    MetalShaderRenderer(platform::GpuView& metalKitView, QString name, const QString& vertexShaderName,
                        const QString& fragmentShaderName);
    ~MetalShaderRenderer() override;

    /// Begins making the machine's device and this pair's pipeline on another thread, so that the first
    /// renderer has less to wait for. Errors are left to the renderer. What is returned waits for the thread
    /// when it goes, which must be before the application object does.
    [[nodiscard]] static std::shared_ptr<const void> prepare(const QString& vertexShaderName,
                                                             const QString& fragmentShaderName);

    void drawableSizeWillChange(platform::GpuView& view, QSizeF size) override;
    void draw(platform::GpuView& view) override;

    /// Adds the time since `pauseTime` to what the clock leaves out, and lets it run again.
    void resumeClock();

    /// When the clock was paused. What passes from then to `resumeClock` is left out.
    std::optional<Clock::time_point> pauseTime;

    /// Seconds since the renderer was made, less those spent paused before the last `resumeClock`.
    float time() const;

    std::uint32_t seed() const { return m_seed; }

    const QString& name() const { return m_name; }

    std::array<float, 2> viewportSize() const;
    void setViewportSize(QSizeF size);

private:
    std::shared_ptr<platform::GpuDevice> m_device;
    std::unique_ptr<platform::CommandQueue> m_commandQueue;
    std::shared_ptr<platform::RenderPipelineState> m_pipelineState;
    std::uint32_t m_seed;
    Clock::time_point m_startTime;
    std::unique_ptr<platform::GpuBuffer> m_vertexBuffer;
    int m_vertexCount = 4;
    platform::Viewport m_viewport;
    QString m_name;
    double m_pausedTime = 0;
};

} // namespace vantor
