#include "VantorShaders/RendererError.h"

#include "Platform/Core/Localization.h"

namespace vantor {

QString RendererError::localizedDescription() const {
    //: Error message shown run on a machine without metal
    return platform::localizedString("MetalRenderer.Error.description",
                                     QStringLiteral("No valid metal device"));
}

} // namespace vantor
