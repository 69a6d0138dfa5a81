#pragma once

#include <QString>

namespace platform {

class SPUUpdater;

/// Tells an updater what only its application knows.
class SPUUpdaterDelegate {
public:
    virtual ~SPUUpdaterDelegate() = default;

    /// The https address of the update feed; asked for at each check.
    virtual QString feedURLStringForUpdater(const SPUUpdater& updater) = 0;
};

} // namespace platform
