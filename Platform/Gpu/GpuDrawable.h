#pragma once

#include "Platform/Gpu/ScreenEncoding.h"
#include "Platform/Graphics/WindowMemory.h"

#include <QImage>
#include <QSize>

#include <array>
#include <memory>
#include <optional>

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
    QSize size() const { return m_size; }

    ColorSpace colorSpace() const { return m_space; }

    unsigned framebuffer() const { return m_framebuffer; }

    /// How many have been presented.
    std::size_t frames() const { return m_frames; }

    /// Where `present` writes the frame, in place of the drawable's own image: pixels of its size.
    void setDestination(const std::optional<PixelRows>& pixels) { m_destination = pixels; }

    /// Reads the frame back. Inside a scope of the context.
    void present();

    /// Opaque, rows from the top; null before the first frame. Outside a scope, for it reads a frame that has
    /// gone to a destination back again.
    QImage image();

private:
    void read(const PixelRows& pixels);
    void readLate(const PixelRows& pixels);
    void readImage();

    std::shared_ptr<GpuDevice> m_device;
    QSize m_size;
    ColorSpace m_space;
    unsigned m_framebuffer = 0;
    unsigned m_renderbuffer = 0;
    std::array<unsigned, 2> m_pixelBuffers{};
    std::size_t m_frames = 0;
    bool m_late;
    std::optional<PixelRows> m_destination;
    QImage m_image;
    bool m_isImageOld = false; // the frame went to the destination
};

} // namespace platform
