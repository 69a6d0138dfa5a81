#include "Platform/Windows/Browser.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace platform {

namespace {

bool isSandboxed() {
    return QFile::exists(QStringLiteral("/.flatpak-info")) || qEnvironmentVariableIsSet("SNAP");
}

} // namespace

bool hasHandler(const QString& scheme) {
    const QString query = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (isSandboxed() || query.isEmpty())
        return true;
    QProcess process;
    process.start(query, {QStringLiteral("query"), QStringLiteral("default"), u"x-scheme-handler/" + scheme});
    constexpr int patience = 2000;
    return !process.waitForFinished(patience) || !process.readAllStandardOutput().trimmed().isEmpty();
}

bool hasBrowser() {
    return qEnvironmentVariableIsSet("BROWSER") ||
           !QStandardPaths::findExecutable(QStringLiteral("x-www-browser")).isEmpty() ||
           hasHandler(QStringLiteral("https"));
}

bool startHandler(const QString& address) {
    return QProcess::startDetached(QStringLiteral("xdg-open"), {address});
}

} // namespace platform
