#pragma once

namespace noteloft::plugin {

/// Qt inside of a process that is somebody else's. Main thread of the host.
namespace QtSession {

/// Makes the application object if the process has none. It is never destroyed, since Qt cannot be started
/// twice. The host's locale and environment are afterwards what they were. False if the application is the
/// host's and cannot show an editor: it has no widgets, another window system, or another thread.
bool begin();

/// Lets Qt do what is due, for a few milliseconds at most, whichever plug-in has made the application;
/// nothing if the host runs Qt's loop itself, or from within Qt.
void pump();

} // namespace QtSession

} // namespace noteloft::plugin
