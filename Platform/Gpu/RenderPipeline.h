#pragma once

#include "Platform/Gpu/GpuContext.h"
#include "Platform/Gpu/GpuLibrary.h"
#include "Platform/Gpu/ScreenEncoding.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace platform {

/// What a pipeline is made of.
struct RenderPipelineDescriptor {
    QString label;
    std::optional<GpuFunction> vertexFunction;
    std::optional<GpuFunction> fragmentFunction;

    /// Equal for descriptors that make the same pipeline.
    std::string key() const;
};

/// A compiled pair of functions that draws for the screen. Inside a scope of the context.
class GpuProgram {
public:
    GpuProgram(const RenderPipelineDescriptor& descriptor, ColorSpace space);
    ~GpuProgram();
    GpuProgram(const GpuProgram&) = delete;
    GpuProgram& operator=(const GpuProgram&) = delete;

    unsigned name() const { return m_name; }

    /// The uniform behind index `index` of the fragment bytes, or -1, which OpenGL ignores, if there is none.
    int fragmentLocation(std::size_t index) const {
        return index < m_locations.size() ? m_locations[index] : -1;
    }

private:
    void link(unsigned vertex, unsigned fragment, const QString& label);

    unsigned m_name = 0;
    std::vector<int> m_locations;
};

/// A pair of functions, ready to draw. Must not outlive its context.
class RenderPipelineState {
public:
    /// Throws `GpuError` if a function is missing, does not compile, or does not fit the other.
    RenderPipelineState(GpuContext& context, RenderPipelineDescriptor descriptor);
    ~RenderPipelineState();
    RenderPipelineState(const RenderPipelineState&) = delete;
    RenderPipelineState& operator=(const RenderPipelineState&) = delete;

    /// Inside a scope of the context.
    const GpuProgram& program(ColorSpace space) const;

private:
    GpuContext& m_context;
    RenderPipelineDescriptor m_descriptor;
    // The one for extended linear sRGB is there from the start, another when a drawable needs it.
    mutable std::map<ColorSpace, GpuProgram> m_programs;
};

} // namespace platform
