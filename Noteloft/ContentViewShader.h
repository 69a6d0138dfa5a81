#pragma once

#include "VantorShaders/MetalShaderViewController.h"

#include <QWidget>

#include <memory>

namespace noteloft {

/// The animated waveform behind the title of the welcome window.
class ContentViewShader : public QWidget {
    Q_OBJECT

public:
    explicit ContentViewShader(QWidget* parent = nullptr);
    ~ContentViewShader() override;

    /// Begins loading what the waveform needs on another thread. What is returned waits for the thread when
    /// it goes, which must be before the application object does.
    [[nodiscard]] static std::shared_ptr<const void> prepare();

    /// Draws the waveform anew, also while its clock stands.
    void updateController();

    vantor::MetalShaderViewController& controller() { return *m_controller; }

private:
    std::unique_ptr<vantor::MetalShaderViewController> m_controller;
};

} // namespace noteloft
