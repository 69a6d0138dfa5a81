#pragma once

class QString;

namespace noteloft::plugin {

/// Loads the display font that lies in `folder`, once for the process.
void loadDisplayFont(const QString& folder);

} // namespace noteloft::plugin
