#pragma once

#include "Platform/Gpu/GpuContext.h"
#include "Platform/Gpu/ScreenEncoding.h"

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace platform {

class CommandBuffer;
class GpuBuffer;
class GpuDevice;
class GpuDrawable;
class GpuProgram;
class RenderPipelineState;

/// The part of a drawable that a pass draws to, in pixels, and the range of its depths.
struct Viewport {
    double originX = 0;
    double originY = 0;
    double width = 0;
    double height = 0;
    double znear = 0;
    double zfar = 1;
};

/// Where a pass draws to. The drawable is cleared to black first.
struct RenderPassDescriptor {
    GpuDrawable* drawable = nullptr;
};

/// Writes the commands of one pass. Between its making and `endEncoding`.
class RenderCommandEncoder {
public:
    explicit RenderCommandEncoder(const RenderPassDescriptor& descriptor);

    void setRenderPipelineState(const RenderPipelineState& state);
    void setViewport(const Viewport& viewport);

    /// Floats in pairs, starting `offset` bytes into `buffer`, become the vertex function's input `index`.
    void setVertexBuffer(const GpuBuffer& buffer, std::size_t offset, unsigned index);

    /// Small constants, by the index that the library gives the fragment function's uniforms. After the
    /// pipeline.
    void setFragmentBytes(std::array<float, 2> value, std::size_t index);
    void setFragmentBytes(std::uint32_t value, std::size_t index);
    void setFragmentBytes(float value, std::size_t index);

    void drawTriangleStrip(int vertexStart, int vertexCount);
    void endEncoding();

private:
    ColorSpace m_space;
    const GpuProgram* m_program = nullptr;
};

/// The commands of one frame, in effect when committed. The device's context is current while it lives.
class CommandBuffer {
public:
    explicit CommandBuffer(GpuContext& context) : m_scope(context) {}

    const QString& label() const { return m_label; }

    void setLabel(const QString& label) { m_label = label; }

    std::unique_ptr<RenderCommandEncoder> makeRenderCommandEncoder(const RenderPassDescriptor& descriptor);

    /// Shows `drawable` when the commands are done.
    void present(GpuDrawable& drawable) { m_presented = &drawable; }

    void commit();

private:
    GpuContext::Scope m_scope;
    QString m_label;
    GpuDrawable* m_presented = nullptr;
};

/// Makes the command buffers of one renderer, one at a time.
class CommandQueue {
public:
    explicit CommandQueue(std::shared_ptr<GpuDevice> device);
    ~CommandQueue();
    CommandQueue(const CommandQueue&) = delete;
    CommandQueue& operator=(const CommandQueue&) = delete;

    std::unique_ptr<CommandBuffer> makeCommandBuffer();

private:
    std::shared_ptr<GpuDevice> m_device;
    unsigned m_vertexArray = 0;
};

} // namespace platform
