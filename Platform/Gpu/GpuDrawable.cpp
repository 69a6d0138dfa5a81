#include "Platform/Gpu/GpuDrawable.h"

#include "Platform/Gpu/GpuDevice.h"

#include <epoxy/gl.h>

#include <cstring>
#include <utility>

namespace platform {

GpuDrawable::GpuDrawable(std::shared_ptr<GpuDevice> device, QSize size, ColorSpace space, ReadBack readBack)
    : m_device(std::move(device)),
      m_space(space),
      m_late(readBack == ReadBack::oneFrameLate),
      m_image(size, QImage::Format_RGB32) {
    const GpuContext::Scope scope(m_device->context());
    glGenRenderbuffers(1, &m_renderbuffer);
    glBindRenderbuffer(GL_RENDERBUFFER, m_renderbuffer);
    glRenderbufferStorage(GL_RENDERBUFFER, GL_RGBA8, size.width(), size.height());
    glGenFramebuffers(1, &m_framebuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, m_renderbuffer);
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
    glDeleteFramebuffers(1, &m_framebuffer);
    glDeleteRenderbuffers(1, &m_renderbuffer);
    glDeleteBuffers(static_cast<int>(m_pixelBuffers.size()), m_pixelBuffers.data());
}

void GpuDrawable::present() {
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
