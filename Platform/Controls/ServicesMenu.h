#pragma once

namespace platform {

class Menu;

/// The menu of what other applications offer to do; null until set, and when the menu has gone. Not owned.
Menu* servicesMenu();
void setServicesMenu(Menu* menu);

} // namespace platform
