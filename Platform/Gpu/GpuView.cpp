#include "Platform/Gpu/GpuView.h"

#include "Platform/Core/MainThread.h"
#include "Platform/Gpu/GpuDevice.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>

#include <utility>

namespace platform {

GpuView::GpuView(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

GpuView::~GpuView() = default;

void GpuView::setDevice(std::shared_ptr<GpuDevice> device) {
    requireMainThread();
    m_drawable.reset();
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    m_device = std::move(device);
    setNeedsDisplay();
    updateTimer();
}

void GpuView::setDelegate(GpuViewDelegate* delegate) {
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    m_delegate = delegate;
    setNeedsDisplay();
    updateTimer();
}

void GpuView::setPaused(bool paused) {
    requireMainThread();
    m_paused = paused;
    updateTimer();
}

void GpuView::setPreferredFramesPerSecond(int frames) {
    m_framesPerSecond = frames;
    updateTimer();
}

void GpuView::setColorSpace(ColorSpace space) {
    m_space = space;
    setNeedsDisplay();
}

QSizeF GpuView::drawableSize() const {
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void GpuView::setNeedsDisplay() {
    m_frameDue = true;
    update();
}

QImage GpuView::image() const {
    return m_drawable ? m_drawable->image() : QImage();
}

void GpuView::updateDrawable() {
    const QSizeF size = drawableSize();
    if (!m_device || size.isEmpty()) {
        m_drawable.reset();
        return;
    }
    if (m_drawable && m_drawable->size() == size.toSize() && m_drawable->colorSpace() == m_space)
        return;
    const auto readBack = m_device->context().isSoftware() ? GpuDrawable::ReadBack::immediate
                                                           : GpuDrawable::ReadBack::oneFrameLate;
    m_drawable.reset();
    m_drawable = std::make_unique<GpuDrawable>(m_device, size.toSize(), m_space, readBack);
    m_frameDue = true;
}

std::optional<RenderPassDescriptor> GpuView::currentRenderPassDescriptor() {
    return m_drawable ? std::optional(RenderPassDescriptor{m_drawable.get()}) : std::nullopt;
}

void GpuView::paintEvent(QPaintEvent* event) {
    if (m_delegate == nullptr || !m_device)
        return;
    if (const QSizeF size = drawableSize(); size != m_announcedSize) {
        m_announcedSize = size;
        m_delegate->drawableSizeWillChange(*this, size);
    }
    updateDrawable();
    // Parts of the view that are uncovered show the last frame; only a due frame costs drawing one.
    const bool isShown = std::exchange(m_frameDue, false) && drawFrame(*event);
    const QImage picture = isShown ? QImage() : image();
    if (!isShown)
        QPainter(this).drawImage(rect(), picture);
    // What lies below need not be painted any more.
    setAttribute(Qt::WA_OpaquePaintEvent, isShown || !picture.isNull());
}

// Found without beginning a painter for each frame; none unless all of the view may be painted.
std::optional<PixelRows> GpuView::pixelsBehind(const QPaintEvent& event) const {
    QPoint origin;
    const auto* const device = redirected(&origin);
    if (sharedPainter() != nullptr || device == nullptr || event.rect() != rect() ||
        event.region().rectCount() != 1)
        return std::nullopt;
    return windowPixels(*device, QRectF(-QPointF(origin), QSizeF(size())));
}

// True if the frame is where the painter would put it already.
bool GpuView::drawFrame(const QPaintEvent& event) {
    auto pixels = m_drawable ? pixelsBehind(event) : std::nullopt;
    if (pixels && pixels->size != m_drawable->size())
        pixels.reset();
    const std::size_t before = m_drawable ? m_drawable->frames() : 0;
    if (pixels)
        m_drawable->setDestination(pixels);
    m_delegate->draw(*this);
    if (!pixels || !m_drawable)
        return false;
    m_drawable->setDestination(std::nullopt);
    return m_drawable->frames() != before;
}

void GpuView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_timer.timerId())
        return;
    waitForNextFrame();
    m_frameDue = true;
    repaint(); // at once: an update would wake the loop a second time
}

void GpuView::showEvent(QShowEvent*) {
    m_frameDue = true;
    updateTimer();
}

void GpuView::hideEvent(QHideEvent*) {
    updateTimer();
}

void GpuView::updateTimer() {
    const bool canDraw = m_device != nullptr && m_delegate != nullptr && m_framesPerSecond > 0;
    if (m_paused || !isVisible() || !canDraw) {
        m_timer.stop();
        return;
    }
    m_pacer.start(m_framesPerSecond, FramePacer::Clock::now());
    waitForNextFrame();
}

void GpuView::waitForNextFrame() {
    const auto wait = m_pacer.untilNext(FramePacer::Clock::now());
    m_timer.start(static_cast<int>(wait.count()), Qt::PreciseTimer, this);
}

} // namespace platform
