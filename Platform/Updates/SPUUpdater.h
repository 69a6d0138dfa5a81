#pragma once

#include "Platform/Updates/Appcast.h"
#include "Platform/Updates/UpdateError.h"

#include <QByteArray>

#include <memory>
#include <optional>

namespace platform {

class FeedLoader;
class SPUStandardUserDriver;
class SPUUpdaterDelegate;

/// Looks for updates of the running application, which `Bundle::main()` describes: "name", "version" for
/// people and "build", which is compared with the versions of the feed. An update is announced with links; it
/// is not installed. Main thread.
class SPUUpdater {
public:
    /// Neither is owned; `delegate` may be null, and then every check fails.
    SPUUpdater(SPUStandardUserDriver& userDriver, SPUUpdaterDelegate* delegate);
    ~SPUUpdater();
    SPUUpdater(const SPUUpdater&) = delete;
    SPUUpdater& operator=(const SPUUpdater&) = delete;

    void startUpdater() { m_isStarted = true; }

    /// Starts a check and shows its progress and its result. Brings the dialog to the front instead while an
    /// earlier check runs; a result that is still shown is replaced. Does nothing before `startUpdater`.
    void checkForUpdates();

private:
    void show(const QByteArray& data, const std::optional<UpdateError>& error);

    SPUStandardUserDriver& m_userDriver;
    SPUUpdaterDelegate* m_delegate;
    // Made at the first check, so that an application that never checks does not pay for the network.
    std::unique_ptr<FeedLoader> m_loader;
    bool m_isStarted = false;
};

} // namespace platform
