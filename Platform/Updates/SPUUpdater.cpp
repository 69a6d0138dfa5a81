#include "Platform/Updates/SPUUpdater.h"

#include "Platform/Core/Bundle.h"
#include "Platform/Core/MainThread.h"
#include "Platform/Updates/FeedLoader.h"
#include "Platform/Updates/KnownUpdate.h"
#include "Platform/Updates/SPUStandardUserDriver.h"
#include "Platform/Updates/SPUUpdaterDelegate.h"

#include <QSysInfo>
#include <QUrl>

namespace platform {

SPUUpdater::SPUUpdater(SPUStandardUserDriver& userDriver, SPUUpdaterDelegate* delegate)
    : m_userDriver(userDriver), m_delegate(delegate) {}

SPUUpdater::~SPUUpdater() = default;

void SPUUpdater::checkForUpdates() {
    requireMainThread();
    if (!m_isStarted)
        return;
    if (m_userDriver.isChecking()) {
        m_userDriver.showInFront();
        return;
    }
    if (!m_loader)
        m_loader = std::make_unique<FeedLoader>();
    m_userDriver.showUserInitiatedUpdateCheck([this] { m_loader->cancel(); });
    const QUrl url(m_delegate != nullptr ? m_delegate->feedURLStringForUpdater(*this) : QString());
    m_loader->load(url, [this](const auto& data, const auto& error) { show(data, error); });
}

void SPUUpdater::show(const QByteArray& data, const std::optional<UpdateError>& error) {
    if (error)
        return m_userDriver.showUpdaterError(*error);
    const Appcast appcast = Appcast::read(data);
    if (!appcast.error.isEmpty())
        return m_userDriver.showUpdaterError(
            {QStringLiteral("The update information cannot be used: %1.").arg(appcast.error),
             QStringLiteral("Please try again later, or get the latest version from the website.")});
    const auto* update =
        appcast.newestAbove(Bundle::main().information(QStringLiteral("build")), QSysInfo::kernelVersion());
    KnownUpdate::store(update != nullptr ? update->displayVersion : QString());
    if (update != nullptr)
        m_userDriver.showUpdateFound(*update);
    else
        m_userDriver.showUpdateNotFound();
}

} // namespace platform
