#include "Platform/Updates/SPUStandardUpdaterController.h"

namespace platform {

SPUStandardUpdaterController::SPUStandardUpdaterController(bool startingUpdater,
                                                           SPUUpdaterDelegate* updaterDelegate,
                                                           SPUStandardUserDriverDelegate* userDriverDelegate)
    : m_userDriver(userDriverDelegate), m_updater(m_userDriver, updaterDelegate) {
    if (startingUpdater)
        startUpdater();
}

void SPUStandardUpdaterController::checkForUpdates(QObject*) {
    m_updater.checkForUpdates();
}

} // namespace platform
