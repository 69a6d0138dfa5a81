#include "Platform/Gpu/GpuDrawable.h"

#include "Platform/Gpu/GpuDevice.h"
#include "Platform/Gpu/OpenGL.h"

#include <cstddef>
#include <cstring>
#include <utility>

namespace platform {

namespace {

constexpr int bytesPerPixel = 4;

} // namespace

GpuDrawable::GpuDrawable(std::shared_ptr<GpuDevice> device, QSize size, ColorSpace space, ReadBack readBack)
    : m_device(std::move(device)), m_size(size), m_space(space), m_late(readBack == ReadBack::oneFrameLate) {
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
    const auto bytes = static_cast<std::ptrdiff_t>(bytesPerPixel) * size.width() * size.height();
    for (const unsigned buffer : m_pixelBuffers) {
        glBindBuffer(GL_PIXEL_PACK_BUFFER, buffer);
        glBufferData(GL_PIXEL_PACK_BUFFER, bytes, nullptr, GL_STREAM_READ);
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
        glBindBuffer(GL_PIXEL_PACK_BUFFER, m_pixelBuffers[m_frames % 2]);
        glPixelStorei(GL_PACK_ROW_LENGTH, 0);
        glReadPixels(0, 0, m_size.width(), m_size.height(), GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
        glBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
    }
    ++m_frames;
    m_isImageOld = m_destination.has_value();
    if (m_destination)
        read(*m_destination);
    else
        readImage();
}

QImage GpuDrawable::image() {
    if (std::exchange(m_isImageOld, false)) {
        const GpuContext::Scope scope(m_device->context());
        readImage();
    }
    return m_image;
}

void GpuDrawable::readImage() {
    if (m_image.isNull()) {
        m_image = QImage(m_size, QImage::Format_RGB32);
        m_image.fill(Qt::black);
    }
    read({reinterpret_cast<QRgb*>(m_image.bits()), m_image.bytesPerLine() / bytesPerPixel, m_size});
}

void GpuDrawable::read(const PixelRows& pixels) {
    if (m_late) {
        readLate(pixels);
        return;
    }
    glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    glPixelStorei(GL_PACK_ROW_LENGTH, static_cast<int>(pixels.stride));
    glReadPixels(0, 0, m_size.width(), m_size.height(), GL_RGBA, GL_UNSIGNED_BYTE, pixels.first);
}

void GpuDrawable::readLate(const PixelRows& pixels) {
    // The first frame is waited for, so that a view never shows an empty picture.
    glBindBuffer(GL_PIXEL_PACK_BUFFER, m_pixelBuffers[m_frames == 1 ? 0 : m_frames % 2]);
    if (const void* frame = glMapBuffer(GL_PIXEL_PACK_BUFFER, GL_READ_ONLY); frame != nullptr) {
        const auto rowLength = static_cast<std::size_t>(m_size.width()) * bytesPerPixel;
        for (int row = 0; row < m_size.height(); ++row)
            std::memcpy(pixels.first + row * pixels.stride, static_cast<const char*>(frame) + row * rowLength,
                        rowLength);
        glUnmapBuffer(GL_PIXEL_PACK_BUFFER);
    }
    glBindBuffer(GL_PIXEL_PACK_BUFFER, 0);
}

} // namespace platform
