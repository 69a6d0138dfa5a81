#include "Gallery/AllPages.h"
#include "Gallery/PagePicture.h"
#include "Gallery/Window/GalleryWindow.h"
#include "Platform/Core/Bundle.h"
#include "Platform/Core/CommandLine.h"
#include "Platform/Graphics/SystemFont.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QSettings>
#include <QTimer>

#include <algorithm>
#include <cstdio>

using namespace gallery;

namespace {

const QString& lastPageKey() {
    static const QString key = QStringLiteral("lastPage");
    return key;
}

void addOptions(QCommandLineParser& parser) {
    parser.setApplicationDescription(QStringLiteral("Shows every control of the kit in every state."));
    parser.addOptions({
        {QStringLiteral("pictures"),
         QStringLiteral("Write pictures of each page, in several settings, and end."),
         QStringLiteral("folder")},
        {QStringLiteral("page"), QStringLiteral("Only this page, or the page to open."),
         QStringLiteral("name")},
        {QStringLiteral("screenshot"), QStringLiteral("Write a picture of the window and end."),
         QStringLiteral("file")},
    });
}

/// Empty if the options can be followed.
QString errorIn(const QCommandLineParser& parser) {
    const QString page = parser.value(QStringLiteral("page"));
    const auto& pages = allPages();
    if (!page.isEmpty() && std::none_of(pages.begin(), pages.end(),
                                        [&](const GalleryPage& known) { return known.title == page; }))
        return QStringLiteral("there is no page named ") + page;
    return parser.positionalArguments().isEmpty() ? QString() : QStringLiteral("there are no arguments");
}

bool save(const QImage& picture, const QString& file) {
    // The writer's quality is its compression turned round.
    constexpr int smallest = 0;
    const bool isSaved = picture.save(file, "PNG", smallest);
    if (!isSaved)
        std::fprintf(stderr, "gallery: cannot write %s\n", qPrintable(file));
    return isSaved;
}

int writePictures(const QCommandLineParser& parser) {
    const QDir folder(parser.value(QStringLiteral("pictures")));
    const QString only = parser.value(QStringLiteral("page"));
    folder.mkpath(QStringLiteral("."));
    bool areSaved = true;
    for (const GalleryPage& page : allPages())
        if (only.isEmpty() || page.title == only)
            for (const GallerySettings& settings : pictureSettings())
                areSaved &= save(pagePicture(page, settings), folder.filePath(pictureName(page, settings)));
    return areSaved ? 0 : 1;
}

int takeScreenshot(GalleryWindow& window, const QString& file) {
    constexpr int settling = 500;
    window.show();
    QTimer::singleShot(settling, &window,
                       [&] { QCoreApplication::exit(save(window.grab().toImage(), file) ? 0 : 1); });
    return QApplication::exec();
}

int openWindow(const QCommandLineParser& parser) {
    QSettings settings;
    const QString screenshot = parser.value(QStringLiteral("screenshot"));
    GalleryWindow window(allPages());
    if (screenshot.isEmpty())
        window.showPage(settings.value(lastPageKey()).toString());
    window.showPage(parser.value(QStringLiteral("page")));
    if (!screenshot.isEmpty())
        return takeScreenshot(window, screenshot);
    window.show();
    const int status = QApplication::exec();
    settings.setValue(lastPageKey(), window.currentTitle());
    return status;
}

} // namespace

int main(int argc, char** argv) {
    QCommandLineParser parser;
    addOptions(parser);
    platform::Bundle::shareMainOf(QStringLiteral("noteloft"));
    if (const auto status = platform::readCommandLine(parser, argc, argv))
        return *status;
    if (const QString error = errorIn(parser); !error.isEmpty())
        return platform::refuseCommandLine(argv[0], qPrintable(error));
    const bool writesPictures = parser.isSet(QStringLiteral("pictures"));
    if (writesPictures)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    platform::prepareFonts();
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("gallery"));
    QApplication::setOrganizationName(QStringLiteral("Quillfen"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setFont(platform::systemFont(13));
    return writesPictures ? writePictures(parser) : openWindow(parser);
}
