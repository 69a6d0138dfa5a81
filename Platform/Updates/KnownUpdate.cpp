#include "Platform/Updates/KnownUpdate.h"

#include "Platform/Updates/VersionComparison.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

namespace platform {

namespace {

constexpr auto versionKey = "newerVersion";

/// The same in every program.
QString folder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/noteloft");
}

QSettings settings() {
    return QSettings(folder() + QStringLiteral("/update.ini"), QSettings::IniFormat);
}

} // namespace

KnownUpdate::KnownUpdate() {
    QDir().mkpath(folder());
    m_watcher.addPath(folder());
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &KnownUpdate::changed);
}

void KnownUpdate::store(const QString& version) {
    settings().setValue(QLatin1String(versionKey), version);
}

QString KnownUpdate::versionAbove(const QString& running) {
    const QString known = settings().value(QLatin1String(versionKey)).toString();
    return compareVersions(known, running) > 0 ? known : QString();
}

} // namespace platform
