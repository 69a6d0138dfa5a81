#pragma once

#include "Platform/Gpu/GpuContext.h"

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>

namespace platform {

class Bundle;
class CommandQueue;
class GpuBuffer;
class GpuLibrary;
class RenderPipelineState;
struct RenderPipelineDescriptor;

/// What went wrong while a library was read or a pipeline was built.
struct GpuError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What draws: a graphics card, or the processor in its place. Main thread, but for `prepare`.
class GpuDevice : public std::enable_shared_from_this<GpuDevice> {
public:
    /// The machine's device, or null if it can have none. Made on the first call and kept for the life of the
    /// process; waits for a `prepare` that is under way.
    static std::shared_ptr<GpuDevice> systemDefault();

    /// Calls `use` with the machine's device, or null: at once, or, while a `prepare` is under way, in a turn
    /// of the main thread after it.
    static void whenReady(std::function<void(const std::shared_ptr<GpuDevice>&)> use);

    /// Starts making the machine's device on a thread of its own, so that the application can start
    /// meanwhile. `warmUp` then runs on that thread, if there is a device; errors that it throws are dropped.
    /// What is returned waits for the thread when it goes. That must be before the application object goes,
    /// and before `main` returns, since graphics drivers are torn down after it.
    [[nodiscard]] static std::shared_ptr<const void> prepare(std::function<void(GpuDevice&)> warmUp);

    explicit GpuDevice(std::unique_ptr<GpuContext> context);
    ~GpuDevice();

    GpuContext& context() { return *m_context; }

    /// Null if the device cannot make one.
    std::unique_ptr<CommandQueue> makeCommandQueue();

    /// A copy of `length` bytes; null if the device has no memory for it.
    std::unique_ptr<GpuBuffer> makeBuffer(const void* bytes, std::size_t length);

    /// The shaders in the `Shaders` directory of `bundle`. Throws `GpuError` if there are none.
    std::unique_ptr<GpuLibrary> makeDefaultLibrary(const Bundle& bundle);

    /// The pipeline of the descriptor's functions, compiled once and then shared. Throws `GpuError` with the
    /// compiler's words if a function is missing or does not compile.
    std::shared_ptr<RenderPipelineState> makeRenderPipelineState(const RenderPipelineDescriptor& descriptor);

private:
    std::unique_ptr<GpuContext> m_context;
    std::map<std::string, std::shared_ptr<RenderPipelineState>> m_pipelines;
};

/// Memory of the device. Must not outlive the device.
class GpuBuffer {
public:
    GpuBuffer(GpuContext& context, unsigned name, std::size_t length)
        : m_context(context), m_name(name), m_length(length) {}

    ~GpuBuffer();
    GpuBuffer(const GpuBuffer&) = delete;
    GpuBuffer& operator=(const GpuBuffer&) = delete;

    unsigned name() const { return m_name; }

    std::size_t length() const { return m_length; }

private:
    GpuContext& m_context;
    unsigned m_name;
    std::size_t m_length;
};

} // namespace platform
