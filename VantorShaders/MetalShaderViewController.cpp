#include "VantorShaders/MetalShaderViewController.h"

#include "Platform/Core/MainThread.h"
#include "Platform/Gpu/GpuDevice.h"
#include "Platform/Windows/WindowNotifications.h"
#include "VantorShaders/MetalShaderRenderer.h"

#include <QEvent>

#include <utility>

namespace vantor {

using platform::GpuView;
using platform::WindowNotifications;

MetalShaderViewController::MetalShaderViewController(QWidget* view, QString rendererName,
                                                     QString vertxShaderName, QString fragmentShaderName)
    : ViewController(view),
      m_rendererName(std::move(rendererName)),
      m_vertxShaderName(std::move(vertxShaderName)),
      m_fragmentShaderName(std::move(fragmentShaderName)) {}

MetalShaderViewController::~MetalShaderViewController() {
    delete m_metalKitView;
}

void MetalShaderViewController::viewWillAppear() {
    platform::requireMainThread();
    if (m_metalKitView)
        return;
    m_metalKitView = new GpuView(view());
    m_metalKitView->setColorSpace(platform::ColorSpace::extendedLinearSRGB);
    m_metalKitView->setPreferredFramesPerSecond(60);
    m_metalKitView->setGeometry(view()->rect());
    platform::GpuDevice::whenReady([this, appearance = m_metalKitView](const auto& device) {
        if (appearance)
            setDevice(device);
    });
    m_metalKitView->show();
}

void MetalShaderViewController::setDevice(const std::shared_ptr<platform::GpuDevice>& device) {
    m_metalKitView->setDevice(device);
    m_renderer = makeRenderer();
    // Only a view on the screen whose window is no longer the key window.
    if (m_renderer && m_metalKitView->isVisible() && m_metalKitView->isPaused())
        m_renderer->pauseTime = MetalShaderRenderer::Clock::now();
    m_metalKitView->setDelegate(m_renderer.get());
}

std::unique_ptr<MetalShaderRenderer> MetalShaderViewController::makeRenderer() const {
    try {
        return std::make_unique<MetalShaderRenderer>(*m_metalKitView, m_rendererName, m_vertxShaderName,
                                                     m_fragmentShaderName);
    } catch (const std::exception&) {
        return nullptr; // an empty view tells enough
    }
}

void MetalShaderViewController::viewDidAppear() {
    m_metalKitView->setPaused(false);
    auto& notifications = WindowNotifications::shared();
    connect(&notifications, &WindowNotifications::didBecomeKey, this,
            &MetalShaderViewController::handleDidBecomeKey, Qt::UniqueConnection);
    connect(&notifications, &WindowNotifications::didResignKey, this,
            &MetalShaderViewController::handleDidResignKey, Qt::UniqueConnection);
}

// Without a layout: the view may have one of its own, for other children.
bool MetalShaderViewController::eventFilter(QObject* watched, QEvent* event) {
    if (m_metalKitView && watched == view() && event->type() == QEvent::Resize)
        m_metalKitView->setGeometry(view()->rect());
    return ViewController::eventFilter(watched, event);
}

bool MetalShaderViewController::isMyWindow(const QWidget* window) const {
    platform::requireMainThread();
    return m_metalKitView && view() != nullptr && window == view()->window();
}

void MetalShaderViewController::handleDidBecomeKey(QWidget* window) {
    if (!isMyWindow(window))
        return;
    if (m_renderer)
        m_renderer->resumeClock();
    m_metalKitView->setPaused(false);
}

void MetalShaderViewController::handleDidResignKey(QWidget* window) {
    if (!isMyWindow(window))
        return;
    if (m_renderer)
        m_renderer->pauseTime = MetalShaderRenderer::Clock::now();
    m_metalKitView->setPaused(true);
}

void MetalShaderViewController::viewDidDisappear() {
    if (!m_metalKitView)
        return;
    delete m_metalKitView;
    m_renderer.reset();
}

} // namespace vantor
