#pragma once

#include <QString>
#include <QStringList>

namespace platform {

/// Shows the application's About panel, or brings it to the front: icon, name, version, build and copyright
/// from the main bundle's information, and the libraries that it stands on.
void orderFrontStandardAboutPanel(const QStringList& libraries);

} // namespace platform
