#pragma once

namespace platform {

/// Makes plain widgets that are windows known as such to assistive technology, which would take them for
/// fillers. Once is enough. Main thread.
void installWindowAccessibility();

} // namespace platform
