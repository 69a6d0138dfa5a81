#pragma once

#include "Platform/Gpu/GpuDevice.h"

#include <QString>

#include <memory>

namespace vantor {

/// The pipeline "Shader Pipeline" of two functions of the module's shader library. Throws
/// `platform::GpuError` if the library or a function is missing, or the functions do not compile.
std::shared_ptr<platform::RenderPipelineState> makePipelineState(platform::GpuDevice& device,
                                                                 const QString& vertexFunctionName,
                                                                 const QString& fragmentFunctionName);

} // namespace vantor
