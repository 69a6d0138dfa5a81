#pragma once

#include <QString>
#include <QUrl>

namespace platform {

/// One version that a feed announces. Empty texts and addresses were not given.
struct AppcastItem {
    /// What is compared, for example a build number.
    QString version;
    /// What people read, for example 1.2; the version if the feed gives nothing else.
    QString displayVersion;
    /// Only versions without a channel are for everybody.
    QString channel;
    QString operatingSystem;
    QString minimumSystemVersion;
    QUrl downloadUrl;
    QUrl releaseNotesUrl;
    /// A page about the version.
    QUrl link;
    /// There is nothing to download, only a page to read.
    bool isInformational = false;
};

} // namespace platform
