#pragma once

namespace platform {

/// Lets assistive technology see push buttons with their role, their three states and their menu. Once is
/// enough; later calls do nothing.
void installPushButtonAccessibility();

} // namespace platform
