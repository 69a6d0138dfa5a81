#pragma once

#include "Platform/Gpu/GpuView.h"
#include "Platform/Windows/ViewController.h"

#include <QPointer>
#include <QString>

#include <memory>

namespace vantor {

class MetalShaderRenderer;

/// Covers a view with a shader effect while the view appears. The effect's clock and its drawing stand still
/// while the view's window is not the key window. Where no effect can be made the view stays empty. Main
/// thread.
class MetalShaderViewController : public platform::ViewController {
    Q_OBJECT

public:
    /// The two shaders are named functions of the module's library.
    MetalShaderViewController(QWidget* view, QString rendererName, QString vertxShaderName,
                              QString fragmentShaderName);
    ~MetalShaderViewController() override;

    /// Null while the view is not shown.
    platform::GpuView* metalKitView() const { return m_metalKitView; }

    /// Null while the view is not shown, until a device that is being prepared is there, and where no effect
    /// can be made.
    MetalShaderRenderer* renderer() const { return m_renderer.get(); }

    void viewWillAppear() override;
    void viewDidAppear() override;
    void viewDidDisappear() override;

    void handleDidBecomeKey(QWidget* window);
    void handleDidResignKey(QWidget* window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isMyWindow(const QWidget* window) const;
    void setDevice(const std::shared_ptr<platform::GpuDevice>& device);
    std::unique_ptr<MetalShaderRenderer> makeRenderer() const;

    QPointer<platform::GpuView> m_metalKitView; // a child of the view, which may go first
    std::unique_ptr<MetalShaderRenderer> m_renderer;
    QString m_rendererName;
    QString m_vertxShaderName;
    QString m_fragmentShaderName;
};

} // namespace vantor
