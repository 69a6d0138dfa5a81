#include "Platform/Gpu/GpuView.h"

#include "Platform/Core/MainThread.h"
#include "Platform/Gpu/GpuDevice.h"

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

void GpuView::paintEvent(QPaintEvent*) {
    if (m_delegate == nullptr || !m_device)
        return;
    if (const QSizeF size = drawableSize(); size != m_announcedSize) {
        m_announcedSize = size;
        m_delegate->drawableSizeWillChange(*this, size);
    }
    updateDrawable();
    // Parts of the view that are uncovered show the last frame; only a due frame costs drawing one.
    if (std::exchange(m_frameDue, false))
        m_delegate->draw(*this);
    const QImage picture = image();
    QPainter(this).drawImage(rect(), picture);
    // What lies below need not be painted any more.
    setAttribute(Qt::WA_OpaquePaintEvent, !picture.isNull());
}

void GpuView::timerEvent(QTimerEvent* event) {
    if (event->timerId() == m_timer.timerId())
        setNeedsDisplay();
}

void GpuView::resizeEvent(QResizeEvent*) {
    m_frameDue = true;
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
    if (m_paused || !isVisible() || !canDraw)
        m_timer.stop();
    else
        m_timer.start(1000 / m_framesPerSecond, Qt::PreciseTimer, this);
}

} // namespace platform
