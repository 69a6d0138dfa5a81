#pragma once

#include <QObject>
#include <QStringList>

namespace noteloft {

class SparkleHelper;

/// Reacts to what happens to the application as a whole. Main thread.
class AppDelegate : public QObject {
    Q_OBJECT

public:
    /// Null until the application has made it. Not owned.
    SparkleHelper* sparkleHelper = nullptr;

    /// Makes the application dark, if `notificationObject` is the application.
    void applicationDidFinishLaunching(const QObject* notificationObject);

    /// Handles the URLs in order. They are texts, since scheme and host count to the letter, which a parsed
    /// URL no longer tells.
    void applicationOpen(const QStringList& urls);

    /// `noteloft://openAndUpdate` checks for updates; everything else is ignored.
    void handleURL(const QString& url);

public Q_SLOTS:
    /// Does nothing while there is no updater.
    void checkForUpdates(QObject* sender = nullptr);
    void orderFrontStandardAboutPanel(QObject* sender);
    void terminate(QObject* sender);
};

} // namespace noteloft
