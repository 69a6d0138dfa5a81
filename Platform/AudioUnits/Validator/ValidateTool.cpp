// noteloft-validate <type> <subtype> <manufacturer>: validates an audio component as the application does.
#include "Platform/AudioUnits/AudioComponentManager.h"
#include "Platform/AudioUnits/AudioComponentValidation.h"
#include "Platform/AudioUnits/FourCharCode.h"
#include "Platform/Core/Bundle.h"
#include "Platform/Core/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QStringList>
#include <QTextStream>

#include <cstdio>
#include <optional>

namespace {

using Result = platform::AudioComponentValidationResult;

QString summary(Result result) {
    switch (result) {
    case Result::passed:
        return QStringLiteral("Validation passed");
    case Result::timedOut:
        return QStringLiteral("Validation timed out");
    default:
        return QStringLiteral("Validation failed");
    }
}

void print(FILE* stream, const QString& text) {
    QTextStream(stream) << text << Qt::endl;
}

void finish(Result result, const QVariantMap& results) {
    const QStringList lines = results.value(platform::audioComponentValidationOutputKey).toStringList();
    print(stdout, lines.isEmpty() ? QStringLiteral("The plug-in ended the validation") : lines.join(u'\n'));
    print(stdout, summary(result));
    QCoreApplication::exit(result == Result::passed ? 0 : 1);
}

void describe(QCommandLineParser& parser) {
    parser.setApplicationDescription(QStringLiteral(
        "Validates a plug-in as the application does. Each code has four characters, for example: "
        "aumi mdfx Quil. Exits with 0 if the plug-in passed, else with 1."));
    for (const QString& code :
         {QStringLiteral("type"), QStringLiteral("subtype"), QStringLiteral("manufacturer")})
        parser.addPositionalArgument(code, QStringLiteral("The component's %1.").arg(code));
}

std::optional<platform::AudioComponentDescription> descriptionOf(const QStringList& codes) {
    if (codes.size() != 3)
        return {};
    const platform::AudioComponentDescription description{
        .componentType = platform::fourCharCode(codes[0]),
        .componentSubType = platform::fourCharCode(codes[1]),
        .componentManufacturer = platform::fourCharCode(codes[2])};
    const bool isComplete = description.componentType != 0 && description.componentSubType != 0 &&
                            description.componentManufacturer != 0;
    return isComplete ? std::optional(description) : std::nullopt;
}

} // namespace

int main(int argc, char** argv) {
    platform::Bundle::shareMainOf(QStringLiteral("noteloft"));
    QCommandLineParser parser;
    describe(parser);
    if (const auto status = platform::readCommandLine(parser, argc, argv))
        return *status;
    const auto description = descriptionOf(parser.positionalArguments());
    if (!description)
        return platform::refuseCommandLine(
            argv[0], "three codes of four characters are needed, for example: aumi mdfx Quil");
    const QCoreApplication application(argc, argv);
    auto& manager = platform::AudioComponentManager::shared();
    manager.addCarriedComponents();
    const auto components = manager.components(*description);
    if (components.isEmpty()) {
        print(stderr, QStringLiteral("No such plug-in is installed"));
        return 1;
    }
    platform::audioComponentValidateWithResults(components.first(), {}, finish);
    return QCoreApplication::exec();
}
