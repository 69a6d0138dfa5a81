#pragma once

#include "Platform/Gpu/ScreenEncoding.h"

#include <QImage>
#include <QSize>

#include <array>
#include <memory>

namespace platform {

class GpuDevice;

/// An off-screen target and the picture that is shown of it.
class GpuDrawable {
public:
    enum class ReadBack {
        /// `image` shows the frame just drawn.
        immediate,
        /// `image` shows the frame before it; nobody waits for the graphics card.
        oneFrameLate,
    };

    GpuDrawable(std::shared_ptr<GpuDevice> device, QSize size, ColorSpace space, ReadBack readBack);
    ~GpuDrawable();
    GpuDrawable(const GpuDrawable&) = delete;
    GpuDrawable& operator=(const GpuDrawable&) = delete;

    /// In pixels.
    QSize size() const { return m_image.size(); }

    ColorSpace colorSpace() const { return m_space; }

    unsigned framebuffer() const { return m_framebuffer; }

    /// Reads the frame back. Inside a scope of the context.
    void present();

    /// Opaque, rows from the top; null before the first frame.
    QImage image() const { return m_hasImage ? m_image : QImage(); }

private:
    void readLate();

    std::shared_ptr<GpuDevice> m_device;
    ColorSpace m_space;
    unsigned m_framebuffer = 0;
    unsigned m_renderbuffer = 0;
    std::array<unsigned, 2> m_pixelBuffers{};
    std::size_t m_frames = 0;
    bool m_late;
    bool m_hasImage = false;
    QImage m_image;
};

} // namespace platform
