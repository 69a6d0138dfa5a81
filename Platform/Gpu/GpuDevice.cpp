#include "Platform/Gpu/GpuDevice.h"

#include "Platform/Core/MainQueue.h"
#include "Platform/Core/MainThread.h"
#include "Platform/Gpu/CommandQueue.h"
#include "Platform/Gpu/GpuLibrary.h"
#include "Platform/Gpu/OpenGL.h"
#include "Platform/Gpu/RenderPipeline.h"

#include <QScopeGuard>

#include <future>
#include <mutex>
#include <utility>
#include <vector>

namespace platform {

namespace {

using SharedDevice = std::shared_ptr<GpuDevice>;

SharedDevice makeDevice(const std::function<void(GpuDevice&)>& warmUp) {
    SharedDevice device;
    try {
        if (auto context = GpuContext::make())
            device = std::make_shared<GpuDevice>(std::move(context));
        if (device && warmUp)
            warmUp(*device);
    } catch (const std::exception&) {
        // Who draws with the device meets the same error and decides about it.
    }
    return device;
}

/// Never destroyed: graphics drivers are unloaded before static objects are.
std::shared_future<SharedDevice>& systemDevice() {
    static auto& device = *new std::shared_future<SharedDevice>;
    return device;
}

/// Who waits for a device that another thread is making.
struct Preparation {
    std::mutex mutex; // guards what follows, which both threads see
    bool isUnderWay = false;
    std::vector<std::function<void(const SharedDevice&)>> waiting;
};

Preparation& preparation() {
    static auto& preparation = *new Preparation;
    return preparation;
}

void endPreparation() {
    const std::scoped_lock lock(preparation().mutex);
    preparation().isUnderWay = false;
    for (auto& use : preparation().waiting)
        MainQueue::async([use = std::move(use)] { use(GpuDevice::systemDefault()); });
    preparation().waiting.clear();
}

} // namespace

SharedDevice GpuDevice::systemDefault() {
    requireMainThread();
    if (!systemDevice().valid())
        systemDevice() = std::async(std::launch::deferred, makeDevice, nullptr);
    return systemDevice().get();
}

std::shared_ptr<const void> GpuDevice::prepare(std::function<void(GpuDevice&)> warmUp) {
    if (!systemDevice().valid()) {
        preparation().isUnderWay = true;
        systemDevice() = std::async(std::launch::async, [warmUp = std::move(warmUp)] {
            const auto end = qScopeGuard(endPreparation);
            return makeDevice(warmUp);
        });
    }
    return {nullptr, [](const void*) { systemDevice().wait(); }};
}

void GpuDevice::whenReady(std::function<void(const SharedDevice&)> use) {
    requireMainThread();
    {
        const std::scoped_lock lock(preparation().mutex);
        if (preparation().isUnderWay) {
            preparation().waiting.push_back(std::move(use));
            return;
        }
    }
    use(systemDefault());
}

GpuDevice::GpuDevice(std::unique_ptr<GpuContext> context) : m_context(std::move(context)) {}

GpuDevice::~GpuDevice() = default;

std::unique_ptr<CommandQueue> GpuDevice::makeCommandQueue() {
    return std::make_unique<CommandQueue>(shared_from_this());
}

std::unique_ptr<GpuBuffer> GpuDevice::makeBuffer(const void* bytes, std::size_t length) {
    const GpuContext::Scope scope(*m_context);
    unsigned name = 0;
    glGenBuffers(1, &name);
    glBindBuffer(GL_ARRAY_BUFFER, name);
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(length), bytes, GL_STATIC_DRAW);
    if (glGetError() == GL_NO_ERROR)
        return std::make_unique<GpuBuffer>(*m_context, name, length);
    glDeleteBuffers(1, &name);
    return nullptr;
}

std::unique_ptr<GpuLibrary> GpuDevice::makeDefaultLibrary(const Bundle& bundle) {
    return std::make_unique<GpuLibrary>(bundle);
}

std::shared_ptr<RenderPipelineState>
GpuDevice::makeRenderPipelineState(const RenderPipelineDescriptor& descriptor) {
    auto& pipeline = m_pipelines[descriptor.key()];
    if (!pipeline)
        pipeline = std::make_shared<RenderPipelineState>(*m_context, descriptor);
    return pipeline;
}

GpuBuffer::~GpuBuffer() {
    const GpuContext::Scope scope(m_context);
    glDeleteBuffers(1, &m_name);
}

} // namespace platform
