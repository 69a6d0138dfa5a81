#pragma once

#include "Platform/Updates/SPUStandardUserDriver.h"
#include "Platform/Updates/SPUUpdater.h"

#include <QObject>

namespace platform {

/// An updater with its standard dialogs, for a menu command. Main thread.
class SPUStandardUpdaterController : public QObject {
    Q_OBJECT

public:
    /// The delegates may be null; they are not owned and outlive the controller. Without `startingUpdater`
    /// the updater waits for `startUpdater`.
    SPUStandardUpdaterController(bool startingUpdater, SPUUpdaterDelegate* updaterDelegate,
                                 SPUStandardUserDriverDelegate* userDriverDelegate);

    SPUUpdater& updater() { return m_updater; }

    void startUpdater() { m_updater.startUpdater(); }

public Q_SLOTS:
    /// A check that the user asked for; see `SPUUpdater::checkForUpdates`. `sender` may be null.
    void checkForUpdates(QObject* sender);

private:
    SPUStandardUserDriver m_userDriver;
    SPUUpdater m_updater;
};

} // namespace platform
