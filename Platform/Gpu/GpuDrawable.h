#pragma once

#include "Platform/Gpu/RenderPipeline.h"

#include <QImage>
#include <QSize>

#include <array>
#include <memory>

namespace platform {

class GpuDevice;

/// How a drawable's numbers mean colours.
enum class ColorSpace { extendedLinearSRGB, extendedLinearDisplayP3 };

/// An off-screen target and the picture that is shown of it.
class GpuDrawable {
public:
    enum class ReadBack {
        /// `image` shows the frame just resolved.
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

    unsigned framebuffer() const { return m_linear.framebuffer; }

    /// Converts the frame's linear colours to the screen's encoded sRGB, 8 bits a channel, and reads them
    /// back. What lies outside the screen's range is clipped; what lies between two steps is dithered. Inside
    /// a scope of the context.
    void resolve();

    /// Opaque, rows from the top; null before the first frame.
    QImage image() const { return m_hasImage ? m_image : QImage(); }

private:
    struct Target {
        unsigned framebuffer = 0;
        unsigned texture = 0;
    };

    static Target makeTarget(QSize size, unsigned format);
    static void destroy(const Target& target);
    void drawResolvePass() const;
    void readLate();

    std::shared_ptr<GpuDevice> m_device;
    ColorSpace m_space;
    std::shared_ptr<RenderPipelineState> m_resolvePipeline;
    Target m_linear;
    Target m_encoded;
    unsigned m_vertexArray = 0;
    std::array<unsigned, 2> m_pixelBuffers{};
    std::size_t m_frames = 0;
    bool m_late;
    bool m_hasImage = false;
    QImage m_image;
};

} // namespace platform
