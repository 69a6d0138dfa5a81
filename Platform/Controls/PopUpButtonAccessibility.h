#pragma once

namespace platform {

/// Lets assistive technology see pop-up buttons with the title as their value, and open their menu. Once is
/// enough; later calls do nothing.
void installPopUpButtonAccessibility();

} // namespace platform
