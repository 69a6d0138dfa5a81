#pragma once

class QPoint;
class QWindow;

namespace platform {

/// True if windows may have translucent pixels: a compositor runs. On a display that cannot tell, false.
bool isCompositing();

/// Asks the window manager for its menu of `window` at `position`, in points of the screen. False if it
/// offers none.
bool showSystemMenu(QWindow& window, const QPoint& position);

} // namespace platform
