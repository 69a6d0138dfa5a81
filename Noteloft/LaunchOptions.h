#pragma once

#include <QString>
#include <QStringList>

class QCommandLineParser;

namespace noteloft {

/// What the program was started with.
struct LaunchOptions {
    QStringList urls;
    /// Write a picture of the window to this file and end.
    QString screenshot;
    /// Validate the plug-in; a build without the developer mode does not know the option.
    bool developerMode = false;
    /// End the instance that runs.
    bool quits = false;

    /// Tells the parser what there is.
    static void describe(QCommandLineParser& parser);

    /// `parser` has read the command line.
    static LaunchOptions from(const QCommandLineParser& parser);
};

} // namespace noteloft
