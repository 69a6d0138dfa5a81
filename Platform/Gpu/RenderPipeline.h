#pragma once

#include "Platform/Gpu/GpuContext.h"
#include "Platform/Gpu/GpuLibrary.h"

#include <optional>
#include <string>
#include <vector>

namespace platform {

/// The layout of a drawable's pixels; the numbers are the platform's usual ones.
enum class PixelFormat { bgra8Unorm = 80, rgba16Float = 115 };

/// What a pipeline is made of.
struct RenderPipelineDescriptor {
    QString label;
    std::optional<GpuFunction> vertexFunction;
    std::optional<GpuFunction> fragmentFunction;
    PixelFormat colorPixelFormat = PixelFormat::bgra8Unorm;

    /// Equal for descriptors that make the same pipeline.
    std::string key() const;
};

/// A compiled pair of functions. Must not outlive its context.
class RenderPipelineState {
public:
    /// Throws `GpuError` if a function is missing, does not compile, or does not fit the other.
    RenderPipelineState(GpuContext& context, const RenderPipelineDescriptor& descriptor);
    ~RenderPipelineState();
    RenderPipelineState(const RenderPipelineState&) = delete;
    RenderPipelineState& operator=(const RenderPipelineState&) = delete;

    unsigned program() const { return m_program; }

    /// The uniform behind index `index` of the fragment bytes, or -1, which OpenGL ignores, if there is none.
    int fragmentLocation(std::size_t index) const {
        return index < m_locations.size() ? m_locations[index] : -1;
    }

private:
    void link(unsigned vertex, unsigned fragment, const QString& label);

    GpuContext& m_context;
    unsigned m_program = 0;
    std::vector<int> m_locations;
};

} // namespace platform
