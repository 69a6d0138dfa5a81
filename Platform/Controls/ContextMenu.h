#pragma once

#include <memory>

class QWidget;

namespace platform {

class Menu;

/// The menu that belongs to `widget`; null for none.
Menu* contextMenu(const QWidget& widget);

/// Gives `widget` a menu, instead of the one that it had, which a press of the other mouse button or the menu
/// key opens. The widget owns it.
void setContextMenu(QWidget& widget, std::unique_ptr<Menu> menu);

} // namespace platform
