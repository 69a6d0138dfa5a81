#pragma once

namespace platform {

/// True if the desktop asks for less motion: what would move or fade then changes at once. The first call
/// asks the desktop; until that has answered, only the toolkit's style can say so. Main thread.
bool prefersReducedMotion();

} // namespace platform
