#pragma once

#include <QString>
#include <QStringList>

namespace noteloft {

/// What the program was started with.
struct LaunchOptions {
    QStringList urls;
    /// Write a picture of the window to this file and end.
    QString screenshot;
    /// Validate the plug-in; a build without the developer mode does not know the option.
    bool developerMode = false;
    /// Not empty for an option that there is not, or that lacks its value.
    QString error;

    /// `arguments` without the program's name.
    static LaunchOptions parse(const QStringList& arguments);
};

} // namespace noteloft
