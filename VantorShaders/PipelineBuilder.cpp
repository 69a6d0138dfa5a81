#include "VantorShaders/PipelineBuilder.h"

#include "Platform/Gpu/GpuLibrary.h"
#include "Platform/Gpu/RenderPipeline.h"
#include "VantorShaders/resource_bundle_accessor.h"

namespace vantor {

std::shared_ptr<platform::RenderPipelineState> makePipelineState(platform::GpuDevice& device,
                                                                 const QString& vertexFunctionName,
                                                                 const QString& fragmentFunctionName) {
    const auto library = device.makeDefaultLibrary(resourceBundle());
    platform::RenderPipelineDescriptor descriptor;
    descriptor.label = QStringLiteral("Shader Pipeline");
    descriptor.vertexFunction = library->function(vertexFunctionName);
    descriptor.fragmentFunction = library->function(fragmentFunctionName);
    return device.makeRenderPipelineState(descriptor);
}

} // namespace vantor
