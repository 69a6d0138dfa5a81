#include "Platform/Windows/Browser.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace platform {

namespace {

bool isSandboxed() {
    return QFile::exists(QStringLiteral("/.flatpak-info")) || qEnvironmentVariableIsSet("SNAP");
}

/// The default application for pages, as `xdg-open` finds it.
bool hasDefaultApplication(const QString& query) {
    QProcess process;
    process.start(query, {QStringLiteral("query"), QStringLiteral("default"),
                          QStringLiteral("x-scheme-handler/https")});
    constexpr int patience = 2000;
    return !process.waitForFinished(patience) || !process.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace

bool hasBrowser() {
    if (isSandboxed() || qEnvironmentVariableIsSet("BROWSER") ||
        !QStandardPaths::findExecutable(QStringLiteral("x-www-browser")).isEmpty())
        return true;
    const QString query = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    return query.isEmpty() || hasDefaultApplication(query);
}

} // namespace platform
