#pragma once

#include "Platform/Updates/SPUStandardUpdaterController.h"
#include "Platform/Updates/SPUUpdaterDelegate.h"

#include <memory>

namespace noteloft {

/// Owns the updater and tells it where the application's update feed is. Main thread.
class SparkleHelper : public platform::SPUUpdaterDelegate {
public:
    /// `https://<update host>/noteloft/noteloft.xml`.
    QString feedURLStringForUpdater(const platform::SPUUpdater& updater) override;

    /// Empty until the application sets it, then kept for the life of the process.
    std::unique_ptr<platform::SPUStandardUpdaterController> updaterController;
};

} // namespace noteloft
