#pragma once

#include "Platform/Gpu/CommandQueue.h"
#include "Platform/Gpu/GpuDevice.h"
#include "Platform/Gpu/GpuDrawable.h"
#include "Platform/Gpu/GpuView.h"
#include "Platform/Gpu/RenderPipeline.h"

#include <array>
#include <cstdint>
#include <memory>

/// Covers a drawable. Needs a device.
class GpuQuad {
public:
    void draw(platform::GpuDrawable& drawable, const platform::RenderPipelineState& pipeline,
              std::uint32_t seed = 0, float time = 0) {
        const auto size = drawable.size();
        const auto buffer = m_queue->makeCommandBuffer();
        const auto encoder = buffer->makeRenderCommandEncoder({&drawable});
        encoder->setRenderPipelineState(pipeline);
        encoder->setViewport({.width = double(size.width()), .height = double(size.height())});
        encoder->setVertexBuffer(*m_vertices, 0, 0);
        encoder->setFragmentBytes(std::array{float(size.width()), float(size.height())}, 0);
        encoder->setFragmentBytes(seed, 1);
        encoder->setFragmentBytes(time, 2);
        encoder->drawTriangleStrip(0, 4);
        encoder->endEncoding();
        buffer->present(drawable);
        buffer->commit();
    }

private:
    static constexpr std::array<float, 8> corners{-1, -1, -1, 1, 1, -1, 1, 1};

    std::shared_ptr<platform::GpuDevice> m_device = platform::GpuDevice::systemDefault();
    std::unique_ptr<platform::CommandQueue> m_queue = m_device->makeCommandQueue();
    std::unique_ptr<platform::GpuBuffer> m_vertices = m_device->makeBuffer(corners.data(), sizeof corners);
};

/// Draws frames over a whole drawable, without a view.
class GpuPicture {
public:
    /// Needs a device. The fragment function has the view's size, the seed and the time as its bytes.
    GpuPicture(std::shared_ptr<platform::RenderPipelineState> pipeline, QSize size,
               platform::ColorSpace space = platform::ColorSpace::extendedLinearSRGB,
               platform::GpuDrawable::ReadBack readBack = platform::GpuDrawable::ReadBack::immediate)
        : m_pipeline(std::move(pipeline)),
          m_drawable(platform::GpuDevice::systemDefault(), size, space, readBack) {}

    QImage draw(std::uint32_t seed = 0, float time = 0) {
        m_quad.draw(m_drawable, *m_pipeline, seed, time);
        return m_drawable.image();
    }

    /// A pipeline whose fragment function sets `color` by the statements in `body`.
    static std::shared_ptr<platform::RenderPipelineState> pipeline(const char* body) {
        platform::RenderPipelineDescriptor descriptor;
        descriptor.label = QStringLiteral("Test");
        descriptor.vertexFunction =
            platform::GpuFunction{QStringLiteral("quad"),
                                  "#version 330 core\nlayout(location = 0) in vec2 position;\n"
                                  "void main() { gl_Position = vec4(position, 0.0, 1.0); }\n",
                                  {}};
        descriptor.fragmentFunction = platform::GpuFunction{
            QStringLiteral("body"),
            "#version 330 core\nuniform vec2 viewSize;\nuniform uint seed;\nuniform float time;\n"
            "layout(location = 0) out vec4 color;\nvoid main() {\n" +
                QByteArray(body) + "\n}\n",
            {"viewSize", "seed", "time"}};
        return platform::GpuDevice::systemDefault()->makeRenderPipelineState(descriptor);
    }

private:
    GpuQuad m_quad;
    std::shared_ptr<platform::RenderPipelineState> m_pipeline;
    platform::GpuDrawable m_drawable;
};

/// Fills a view, with white if not told otherwise, and counts.
class GpuFrames : public platform::GpuViewDelegate {
public:
    explicit GpuFrames(const char* body = "color = vec4(1.0);") : m_pipeline(GpuPicture::pipeline(body)) {}

    void drawableSizeWillChange(platform::GpuView&, QSizeF size) override { sizes << size; }

    void draw(platform::GpuView& view) override {
        ++frames;
        if (auto* const drawable = view.currentDrawable())
            m_quad.draw(*drawable, *m_pipeline, seed);
    }

    int frames = 0;
    std::uint32_t seed = 0;
    QList<QSizeF> sizes;

private:
    GpuQuad m_quad;
    std::shared_ptr<platform::RenderPipelineState> m_pipeline;
};

/// A test that needs a device of any kind, be it the processor.
#define NOTELOFT_REQUIRE_GPU()                                                                               \
    if (!platform::GpuDevice::systemDefault())                                                               \
    GTEST_SKIP() << "this machine can make no OpenGL context"
