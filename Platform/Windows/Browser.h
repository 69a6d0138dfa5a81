#pragma once

class QString;
class QUrl;
class QWidget;

namespace platform {

/// True if this machine has a program that shows pages.
bool hasBrowser();

/// True if it has one for addresses that begin with `scheme`, or cannot tell.
bool hasHandler(const QString& scheme);

/// Starts that program with `address`, letter for letter; false if the desktop has no means for that.
bool startHandler(const QString& address);

/// Opens a page in the user's browser; where there is none, shows its address in an alert above the window of
/// `view`. Main thread.
void openInBrowser(const QUrl& url, QWidget* view = nullptr);

/// The same for an address that belongs to a program. Its capitals count, and a `QUrl` keeps none in its
/// host.
void openInProgram(const QString& address, QWidget* view = nullptr);

} // namespace platform
