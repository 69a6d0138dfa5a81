#include "Noteloft/LaunchOptions.h"

#include <QCommandLineParser>

namespace noteloft {

namespace {

const QString screenshotOption = QStringLiteral("screenshot");
const QString quitOption = QStringLiteral("quit");
#ifdef NOTELOFT_DEVELOPER_MODE
const QString developerOption = QStringLiteral("developer");
#endif

} // namespace

void LaunchOptions::describe(QCommandLineParser& parser) {
    parser.setApplicationDescription(
        QStringLiteral("Introduces the Noteloft MIDI effect and tells when there is a new version."));
    parser.addPositionalArgument(
        QStringLiteral("urls"),
        QStringLiteral("Addresses to open; noteloft://openAndUpdate checks for updates."),
        QStringLiteral("[url...]"));
    parser.addOption(
        {screenshotOption, QStringLiteral("Write a picture of the window and end."), QStringLiteral("file")});
    parser.addOption({quitOption, QStringLiteral("End the Noteloft that is running.")});
#ifdef NOTELOFT_DEVELOPER_MODE
    parser.addOption({developerOption, QStringLiteral("Validate the plug-in and show the outcome.")});
#endif
}

LaunchOptions LaunchOptions::from(const QCommandLineParser& parser) {
    LaunchOptions options{.urls = parser.positionalArguments(),
                          .screenshot = parser.value(screenshotOption),
                          .quits = parser.isSet(quitOption)};
#ifdef NOTELOFT_DEVELOPER_MODE
    options.developerMode = parser.isSet(developerOption);
#endif
    return options;
}

} // namespace noteloft
