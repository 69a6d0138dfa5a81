#pragma once

namespace platform {

/// From now on assistive technology sees pop-up buttons as what they are: their value is their title, and
/// they open their menu.
void makePopUpButtonsAccessible();

} // namespace platform
