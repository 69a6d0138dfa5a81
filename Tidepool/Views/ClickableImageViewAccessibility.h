#pragma once

namespace tidepool {

/// Lets assistive technology see clickable images as buttons, and press them. Once is enough; later calls do
/// nothing.
void installClickableImageViewAccessibility();

} // namespace tidepool
