#pragma once

namespace tidepool {

/// Lets assistive technology see each segment as a child of its control. Once is enough; later calls do
/// nothing.
void installStyledSegmentedControlAccessibility();

} // namespace tidepool
