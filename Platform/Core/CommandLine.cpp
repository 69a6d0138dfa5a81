#include "Platform/Core/CommandLine.h"

#include "Platform/Core/Bundle.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

#include <cstdio>

namespace platform {

namespace {

QString nameOf(const char* program) {
    return QFileInfo(QString::fromLocal8Bit(program)).fileName();
}

} // namespace

int refuseCommandLine(const char* program, const char* fault) {
    const QString name = nameOf(program);
    std::fprintf(stderr, "%s: %s\nTry \"%s --help\".\n", qPrintable(name), fault, qPrintable(name));
    return 2;
}

std::optional<int> readCommandLine(QCommandLineParser& parser, int argc, char** argv) {
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    if (!parser.parse(arguments))
        return refuseCommandLine(argv[0], qPrintable(parser.errorText()));
    if (parser.isSet(help)) {
        const QCoreApplication application(argc, argv); // whose name the text has in it
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }
    if (parser.isSet(version)) {
        std::printf("%s %s\n", qPrintable(nameOf(argv[0])),
                    qPrintable(Bundle::main().information(QStringLiteral("version"))));
        return 0;
    }
    return {};
}

} // namespace platform
