#include "Platform/Gpu/GpuDrawable.h"

#include "Platform/Gpu/GpuDevice.h"
#include "Platform/Gpu/ResolveShader.h"

#include <epoxy/gl.h>

#include <cstring>
#include <utility>

namespace platform {

GpuDrawable::GpuDrawable(std::shared_ptr<GpuDevice> device, QSize size, ColorSpace space, ReadBack readBack)
    : m_device(std::move(device)),
      m_space(space),
      m_resolvePipeline(m_device->makeRenderPipelineState(resolvePipelineDescriptor(space))),
      m_late(readBack == ReadBack::oneFrameLate),
      m_image(size, QImage::Format_RGB32) {
    const GpuContext::Scope scope(m_device->context());
    m_linear = makeTarget(size, GL_RGBA16F);
    m_encoded = makeTarget(size, GL_RGBA8);
    glGenVertexArrays(1, &m_vertexArray);
    if (!m_late)
        return;
    glGenBuffers(static_cast<int>(m_pixelBuffers.size()), m_pixelBuffers.data());
    for (const unsigned buffer : m_pixelBuffers) {
        glBindBuffer(GL_PIXEL_PACK_BUFFER, buffer);
        glBufferData(GL_PIXEL_PACK_BUFFER, m_image.sizeInBytes(), nullptr, GL_STREAM_READ);
    }
    glBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
}

GpuDrawable::~GpuDrawable() {
    const GpuContext::Scope scope(m_device->context());
    destroy(m_linear);
    destroy(m_encoded);
    glDeleteVertexArrays(1, &m_vertexArray);
    glDeleteBuffers(static_cast<int>(m_pixelBuffers.size()), m_pixelBuffers.data());
}

GpuDrawable::Target GpuDrawable::makeTarget(QSize size, unsigned format) {
    Target target;
    glGenTextures(1, &target.texture);
    glBindTexture(GL_TEXTURE_2D, target.texture);
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<int>(format), size.width(), size.height(), 0, GL_RGBA,
                 GL_FLOAT, nullptr);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glGenFramebuffers(1, &target.framebuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, target.texture, 0);
    return target;
}

void GpuDrawable::destroy(const Target& target) {
    glDeleteFramebuffers(1, &target.framebuffer);
    glDeleteTextures(1, &target.texture);
}

void GpuDrawable::drawResolvePass() const {
    glBindFramebuffer(GL_FRAMEBUFFER, m_encoded.framebuffer);
    glViewport(0, 0, m_image.width(), m_image.height());
    glUseProgram(m_resolvePipeline->program());
    glUniform1i(m_resolvePipeline->fragmentLocation(0), m_image.height());
    glBindTexture(GL_TEXTURE_2D, m_linear.texture);
    glBindVertexArray(m_vertexArray);
    glDrawArrays(GL_TRIANGLES, 0, 3);
    glUseProgram(0);
}

void GpuDrawable::resolve() {
    drawResolvePass();
    if (m_late) {
        readLate();
        return;
    }
    glReadPixels(0, 0, m_image.width(), m_image.height(), GL_RGBA, GL_UNSIGNED_BYTE, m_image.bits());
    m_hasImage = true;
}

void GpuDrawable::readLate() {
    // The first frame is waited for, so that a view never shows an empty picture.
    glBindBuffer(GL_PIXEL_PACK_BUFFER, m_pixelBuffers[m_frames % 2]);
    glReadPixels(0, 0, m_image.width(), m_image.height(), GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    glBindBuffer(GL_PIXEL_PACK_BUFFER, m_pixelBuffers[m_frames == 0 ? 0 : (m_frames + 1) % 2]);
    if (const void* pixels = glMapBuffer(GL_PIXEL_PACK_BUFFER, GL_READ_ONLY); pixels != nullptr) {
        std::memcpy(m_image.bits(), pixels, static_cast<std::size_t>(m_image.sizeInBytes()));
        glUnmapBuffer(GL_PIXEL_PACK_BUFFER);
        m_hasImage = true;
    }
    glBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
    ++m_frames;
}

} // namespace platform
