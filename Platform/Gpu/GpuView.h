#pragma once

#include "Platform/Gpu/CommandQueue.h"
#include "Platform/Gpu/FramePacer.h"
#include "Platform/Gpu/GpuDrawable.h"

#include <QBasicTimer>
#include <QWidget>

#include <memory>
#include <optional>

namespace platform {

class GpuDevice;
class GpuView;

/// Draws a `GpuView`'s frames.
class GpuViewDelegate {
public:
    virtual ~GpuViewDelegate() = default;

    /// The drawable gets another size, in pixels.
    virtual void drawableSizeWillChange(GpuView& view, QSizeF size) = 0;

    /// Draw one frame into `view.currentRenderPassDescriptor()` and present it.
    virtual void draw(GpuView& view) = 0;
};

/// A view that shows what a delegate draws with the machine's GPU, as often as it prefers while it is on the
/// screen and not paused. Without a device or a delegate it paints nothing. Main thread.
class GpuView : public QWidget {
    Q_OBJECT

public:
    explicit GpuView(QWidget* parent = nullptr);
    ~GpuView() override;

    /// Null until set, and on a machine without one.
    const std::shared_ptr<GpuDevice>& device() const { return m_device; }

    void setDevice(std::shared_ptr<GpuDevice> device);

    /// Not owned; null for none.
    void setDelegate(GpuViewDelegate* delegate);

    /// A view starts paused. While it is paused, and while it cannot draw, it has no timer; paused it draws
    /// only what `setNeedsDisplay` asks for.
    bool isPaused() const { return m_paused; }

    void setPaused(bool paused);

    void setPreferredFramesPerSecond(int frames);
    void setColorSpace(ColorSpace space);

    ColorSpace colorSpace() const { return m_space; }

    /// In pixels: the view's size times the scale of its screen, rounded.
    QSizeF drawableSize() const;

    /// Draws a frame soon, also while paused.
    void setNeedsDisplay();

    /// Nothing while the view is empty or has no device.
    std::optional<RenderPassDescriptor> currentRenderPassDescriptor();

    GpuDrawable* currentDrawable() { return m_drawable.get(); }

    /// What the last frame shows; null before the first. A copy shares its pixels.
    QImage image() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void updateDrawable();
    std::optional<PixelRows> pixelsBehind(const QPaintEvent& event) const;
    bool drawFrame(const QPaintEvent& event);
    void updateTimer();
    void waitForNextFrame();

    std::shared_ptr<GpuDevice> m_device;
    GpuViewDelegate* m_delegate = nullptr;
    std::unique_ptr<GpuDrawable> m_drawable;
    QBasicTimer m_timer; // for the next frame alone
    FramePacer m_pacer;
    ColorSpace m_space = ColorSpace::extendedLinearSRGB;
    QSizeF m_announcedSize;
    int m_framesPerSecond = 60;
    bool m_paused = true;
    bool m_frameDue = true;
};

} // namespace platform
