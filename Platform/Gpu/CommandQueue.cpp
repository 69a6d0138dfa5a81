#include "Platform/Gpu/CommandQueue.h"

#include "Platform/Gpu/GpuDevice.h"
#include "Platform/Gpu/GpuDrawable.h"
#include "Platform/Gpu/OpenGL.h"
#include "Platform/Gpu/RenderPipeline.h"

#include <utility>

namespace platform {

RenderCommandEncoder::RenderCommandEncoder(const RenderPassDescriptor& descriptor)
    : m_space(descriptor.drawable->colorSpace()) {
    glBindFramebuffer(GL_FRAMEBUFFER, descriptor.drawable->framebuffer());
    glClear(GL_COLOR_BUFFER_BIT);
}

void RenderCommandEncoder::setRenderPipelineState(const RenderPipelineState& state) {
    m_program = &state.program(m_space);
    glUseProgram(m_program->name());
}

void RenderCommandEncoder::setViewport(const Viewport& viewport) {
    glViewport(static_cast<int>(viewport.originX), static_cast<int>(viewport.originY),
               static_cast<int>(viewport.width), static_cast<int>(viewport.height));
    glDepthRange(viewport.znear, viewport.zfar);
}

void RenderCommandEncoder::setVertexBuffer(const GpuBuffer& buffer, std::size_t offset, unsigned index) {
    glBindBuffer(GL_ARRAY_BUFFER, buffer.name());
    glEnableVertexAttribArray(index);
    const auto* const start = static_cast<const char*>(nullptr) + offset; // OpenGL's way to say an offset
    glVertexAttribPointer(index, 2, GL_FLOAT, GL_FALSE, 0, start);
}

void RenderCommandEncoder::setFragmentBytes(std::array<float, 2> value, std::size_t index) {
    glUniform2f(m_program->fragmentLocation(index), value[0], value[1]);
}

void RenderCommandEncoder::setFragmentBytes(std::uint32_t value, std::size_t index) {
    glUniform1ui(m_program->fragmentLocation(index), value);
}

void RenderCommandEncoder::setFragmentBytes(float value, std::size_t index) {
    glUniform1f(m_program->fragmentLocation(index), value);
}

void RenderCommandEncoder::drawTriangleStrip(int vertexStart, int vertexCount) {
    glDrawArrays(GL_TRIANGLE_STRIP, vertexStart, vertexCount);
}

void RenderCommandEncoder::endEncoding() {
    glUseProgram(0);
}

std::unique_ptr<RenderCommandEncoder>
CommandBuffer::makeRenderCommandEncoder(const RenderPassDescriptor& descriptor) {
    return std::make_unique<RenderCommandEncoder>(descriptor);
}

void CommandBuffer::commit() {
    if (m_presented != nullptr)
        m_presented->present();
}

CommandQueue::CommandQueue(std::shared_ptr<GpuDevice> device) : m_device(std::move(device)) {
    const GpuContext::Scope scope(m_device->context());
    glGenVertexArrays(1, &m_vertexArray);
}

CommandQueue::~CommandQueue() {
    const GpuContext::Scope scope(m_device->context());
    glDeleteVertexArrays(1, &m_vertexArray);
}

std::unique_ptr<CommandBuffer> CommandQueue::makeCommandBuffer() {
    auto buffer = std::make_unique<CommandBuffer>(m_device->context());
    glBindVertexArray(m_vertexArray);
    return buffer;
}

} // namespace platform
