#include "Noteloft/AppDelegate.h"

#include "Noteloft/SparkleHelper.h"
#include "Platform/Graphics/Appearance.h"
#include "Platform/Windows/AboutPanel.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace noteloft {

void AppDelegate::applicationDidFinishLaunching(const QObject* notificationObject) {
    if (notificationObject == QCoreApplication::instance())
        platform::setAppearance(platform::Appearance::dark);
}

void AppDelegate::applicationOpen(const QStringList& urls) {
    for (const QString& url : urls)
        handleURL(url);
}

void AppDelegate::handleURL(const QString& url) {
    // RFC 3986, section 3: scheme ":" "//" [ userinfo "@" ] host [ ":" port ], up to the path.
    static const QRegularExpression parts(QStringLiteral(
        R"(\A(?<scheme>[A-Za-z][A-Za-z0-9+.-]*)://(?:[^/?#@]*@)?(?<host>[^/?#:@]*)(?::\d*)?(?:[/?#]|\z))"));
    const auto match = parts.match(url);
    if (match.captured(u"scheme") == u"noteloft" && match.captured(u"host") == u"openAndUpdate")
        checkForUpdates();
}

void AppDelegate::checkForUpdates(QObject*) {
    if (sparkleHelper != nullptr && sparkleHelper->updaterController)
        sparkleHelper->updaterController->checkForUpdates(nullptr);
}

void AppDelegate::orderFrontStandardAboutPanel(QObject*) {
    platform::orderFrontStandardAboutPanel({
        tr("Qt %1, LGPL 3").arg(QString::fromLatin1(qVersion())),
        tr("lilv, ISC · QCoro, MIT"),
        tr("Inter and Quicksand, SIL Open Font License"),
    });
}

void AppDelegate::terminate(QObject*) {
    QCoreApplication::quit();
}

} // namespace noteloft
