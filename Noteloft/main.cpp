#include "Noteloft/ContentViewShader.h"
#include "Noteloft/LaunchOptions.h"
#include "Noteloft/NoteloftApp.h"
#include "Noteloft/ResourceBundle.h"
#include "Platform/Core/CommandLine.h"
#include "Platform/Core/SingleInstance.h"
#include "Platform/Gpu/GpuContext.h"
#include "Platform/Graphics/SystemFont.h"
#include "Platform/Windows/ApplicationIcon.h"
#include "Platform/Windows/HiddenTitleBarWindow.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFontDatabase>
#include <QTimer>

#include <chrono>
#include <cstdio>

using noteloft::LaunchOptions;
using noteloft::NoteloftApp;

namespace {

void registerFonts() {
    const QDir fonts(noteloft::resourceBundle().path(QStringLiteral("Fonts")));
    const auto files = fonts.entryList(QDir::Files);
    for (const QString& file : files)
        QFontDatabase::addApplicationFont(fonts.filePath(file));
}

void nameApplication(QApplication& application) {
    application.setApplicationName(QStringLiteral("noteloft"));
    application.setApplicationDisplayName(QStringLiteral("Noteloft"));
    application.setOrganizationName(QStringLiteral("Quillfen"));
    application.setOrganizationDomain(QStringLiteral("quillfen.example"));
    application.setDesktopFileName(QStringLiteral("example.quillfen.Noteloft"));
    // Closing the window leaves the application running.
    application.setQuitOnLastWindowClosed(false);
}

/// The icon can wait until people see the window.
void setIconLater(const QApplication& application) {
    constexpr auto firstFrames = std::chrono::milliseconds(250);
    QTimer::singleShot(firstFrames, &application, &platform::useApplicationIcon);
}

void takeScreenshotLater(NoteloftApp& application, const QString& file) {
    constexpr int settling = 1500;
    QTimer::singleShot(settling, &application.window(), [&application, file] {
        const bool saved = application.window().grab().save(file);
        if (!saved)
            std::fprintf(stderr, "noteloft: cannot write %s\n", qPrintable(file));
        QCoreApplication::exit(saved ? 0 : 1);
    });
}

} // namespace

int main(int argc, char** argv) {
    QCommandLineParser parser;
    LaunchOptions::describe(parser);
    if (const auto status = platform::readCommandLine(parser, argc, argv))
        return *status;
    const auto options = LaunchOptions::from(parser);
    platform::SingleInstance instance(QStringLiteral("noteloft"));
    const bool isAlone = !options.screenshot.isEmpty();
    const platform::StartRequest start{options.quits ? QStringList{NoteloftApp::quitRequest()} : options.urls,
                                       platform::ActivationToken::fromEnvironment()};
    if ((!isAlone && instance.handOver(start)) || options.quits)
        return 0;
    platform::GpuContext::setKeptCurrent(true);
    // A screenshot has the waveform in it however long the graphics device takes.
    auto preparation = isAlone ? nullptr : noteloft::ContentViewShader::prepare();
    platform::prepareFonts();
    QApplication application(argc, argv);
    nameApplication(application);
    registerFonts();
    QApplication::setFont(platform::systemFont(13));
    NoteloftApp app(options);
    if (isAlone)
        takeScreenshotLater(app, options.screenshot);
    else
        instance.listen([&app](const platform::StartRequest& later) { app.reopen(later); });
    app.finishLaunching();
    app.delegate().applicationOpen(options.urls);
    setIconLater(application);
    const int status = QApplication::exec();
    preparation.reset();
    return status;
}
