#pragma once

#include "Platform/Gpu/GpuDrawable.h"

namespace platform {

/// The pass that turns linear colours of `space` into encoded sRGB. It needs no vertex buffer: three vertices
/// cover the target. Its fragment bytes: 0, the height in pixels as an int.
RenderPipelineDescriptor resolvePipelineDescriptor(ColorSpace space);

} // namespace platform
