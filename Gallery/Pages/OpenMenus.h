#pragma once

class QWidget;

namespace gallery {

/// Pictures of open menus with every kind of item, each under a caption.
QWidget* makeOpenMenus();

} // namespace gallery
