#pragma once

namespace platform {

/// Gives the application its icon, the main bundle's `Icons/<application's name>.png`, unless it has one or
/// there is none. Whoever shows a window with the icon in it asks for it; the first one reads it. Main
/// thread.
void useApplicationIcon();

} // namespace platform
