#include "VantorShaders/MetalShaderRenderer.h"

#include "Platform/Core/FatalError.h"
#include "Platform/Core/MainThread.h"
#include "Platform/Gpu/GpuDevice.h"
#include "Platform/Gpu/GpuDrawable.h"
#include "VantorShaders/PipelineBuilder.h"
#include "VantorShaders/resource_bundle_accessor.h"

#include <QRandomGenerator>

#include <cmath>
#include <utility>

namespace vantor {

namespace {

/// A triangle strip over the whole of clip space.
constexpr std::array<float, 8> quad{-1, -1, -1, 1, 1, -1, 1, 1};

double secondsSince(MetalShaderRenderer::Clock::time_point time) {
    return std::abs(std::chrono::duration<double>(MetalShaderRenderer::Clock::now() - time).count());
}

struct Inputs {
    std::array<float, 2> viewSize;
    std::uint32_t seed;
    float time;
};

void encodeQuad(platform::RenderCommandEncoder& encoder, const platform::RenderPipelineState& pipeline,
                const platform::GpuBuffer& vertices, const Inputs& inputs) {
    encoder.setRenderPipelineState(pipeline);
    encoder.setViewport({.width = inputs.viewSize[0], .height = inputs.viewSize[1]});
    encoder.setVertexBuffer(vertices, 0, 0);
    encoder.setFragmentBytes(inputs.viewSize, 0);
    encoder.setFragmentBytes(inputs.seed, 1);
    encoder.setFragmentBytes(inputs.time, 2);
    encoder.drawTriangleStrip(0, 4);
    encoder.endEncoding();
}

/// A software device compiles a pipeline for good only when it first draws with it.
void drawOnce(platform::GpuDevice& device, const platform::RenderPipelineState& pipeline) {
    platform::GpuDrawable drawable(device.shared_from_this(), {8, 8},
                                   platform::ColorSpace::extendedLinearSRGB,
                                   platform::GpuDrawable::ReadBack::immediate);
    const auto queue = device.makeCommandQueue();
    const auto vertices = device.makeBuffer(quad.data(), sizeof quad);
    const auto buffer = queue->makeCommandBuffer();
    const auto encoder = buffer->makeRenderCommandEncoder({&drawable});
    encodeQuad(*encoder, pipeline, *vertices, {{8, 8}, 0, 0});
    buffer->present(drawable);
    buffer->commit();
}

} // namespace

MetalShaderRenderer::MetalShaderRenderer(platform::GpuView& metalKitView, QString name,
                                         const QString& vertexShaderName, const QString& fragmentShaderName)
    : m_device(metalKitView.device()),
      m_seed(QRandomGenerator::system()->generate()),
      m_name(std::move(name)) {
    if (!m_device || !(m_commandQueue = m_device->makeCommandQueue()))
        throw RendererError(RendererError::noValidDevice);
    m_pipelineState = makePipelineState(*m_device, vertexShaderName, fragmentShaderName);
    m_vertexBuffer = m_device->makeBuffer(quad.data(), sizeof quad);
    if (!m_vertexBuffer)
        platform::fatalError("Unable to create the vertex buffer");
    setViewportSize(metalKitView.drawableSize());
    m_startTime = Clock::now();
}

MetalShaderRenderer::~MetalShaderRenderer() = default;

std::shared_ptr<const void> MetalShaderRenderer::prepare(const QString& vertexShaderName,
                                                         const QString& fragmentShaderName) {
    resourceBundle(); // found here, since only the main thread may look for it
    return platform::GpuDevice::prepare([vertexShaderName, fragmentShaderName](platform::GpuDevice& device) {
        drawOnce(device, *makePipelineState(device, vertexShaderName, fragmentShaderName));
    });
}

void MetalShaderRenderer::drawableSizeWillChange(platform::GpuView&, QSizeF size) {
    platform::requireMainThread();
    setViewportSize(size);
}

void MetalShaderRenderer::draw(platform::GpuView& view) {
    platform::requireMainThread();
    const auto descriptor = view.currentRenderPassDescriptor();
    if (!descriptor)
        return;
    const auto buffer = m_commandQueue->makeCommandBuffer();
    const auto encoder = buffer ? buffer->makeRenderCommandEncoder(*descriptor) : nullptr;
    if (!encoder)
        return;
    buffer->setLabel(m_name + u" Command Buffer");
    encodeQuad(*encoder, *m_pipelineState, *m_vertexBuffer, {viewportSize(), m_seed, time()});
    if (auto* drawable = view.currentDrawable())
        buffer->present(*drawable);
    buffer->commit();
}

void MetalShaderRenderer::resumeClock() {
    if (pauseTime)
        m_pausedTime += secondsSince(*pauseTime);
    pauseTime.reset();
}

float MetalShaderRenderer::time() const {
    return static_cast<float>(secondsSince(m_startTime) - m_pausedTime);
}

std::array<float, 2> MetalShaderRenderer::viewportSize() const {
    return {static_cast<float>(m_viewport.width), static_cast<float>(m_viewport.height)};
}

void MetalShaderRenderer::setViewportSize(QSizeF size) {
    m_viewport = {.width = size.width(), .height = size.height(), .znear = 0, .zfar = 1};
}

} // namespace vantor
