#pragma once

namespace platform {

/// Lets assistive technology see combo boxes with their text as their value, and open their list. Once is
/// enough; later calls do nothing.
void installComboBoxAccessibility();

} // namespace platform
