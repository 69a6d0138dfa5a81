#include "Noteloft/ContentViewShader.h"

#include "Platform/Gpu/GpuView.h"
#include "VantorShaders/MetalShaderRenderer.h"

#include <QVBoxLayout>

namespace noteloft {

namespace {

const QString& vertexShader() {
    static const QString name = QStringLiteral("audioWaveformVertexShader");
    return name;
}

const QString& fragmentShader() {
    static const QString name = QStringLiteral("audioWaveformFragmentShader");
    return name;
}

} // namespace

ContentViewShader::ContentViewShader(QWidget* parent) : QWidget(parent) {
    auto* const view = new QWidget(this);
    view->setGeometry(0, 0, 300, 300);
    m_controller = std::make_unique<vantor::MetalShaderViewController>(view, QStringLiteral("Main"),
                                                                       vertexShader(), fragmentShader());
    auto* const edges = new QVBoxLayout(this);
    edges->setContentsMargins({});
    edges->addWidget(view);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

ContentViewShader::~ContentViewShader() = default;

std::shared_ptr<const void> ContentViewShader::prepare() {
    return vantor::MetalShaderRenderer::prepare(vertexShader(), fragmentShader());
}

void ContentViewShader::updateController() {
    if (auto* view = m_controller->metalKitView())
        view->setNeedsDisplay();
}

} // namespace noteloft
