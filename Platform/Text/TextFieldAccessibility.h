#pragma once

namespace platform {

/// Lets assistive technology see text fields as what they are: an entry, or a label.
void installTextFieldAccessibility();

} // namespace platform
