#pragma once

class QWidget;

namespace tidepool {

/// Shakes the view for a moment, as who refuses something does; not where the desktop asks for less motion.
/// It ends where the view belongs, even if a layout moves that meanwhile.
void shake(QWidget& view);

} // namespace tidepool
