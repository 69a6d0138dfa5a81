#pragma once

class QUrl;
class QWidget;

namespace platform {

/// True if this machine has a program that shows pages.
bool hasBrowser();

/// Opens an address with the program for it, a page in the user's browser; where there is none, shows the
/// address in an alert above the window of `view`. Main thread.
void openInBrowser(const QUrl& url, QWidget* view = nullptr);

} // namespace platform
