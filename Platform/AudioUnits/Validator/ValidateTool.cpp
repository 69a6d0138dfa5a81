// noteloft-validate <type> <subtype> <manufacturer>: validates an audio component as the application does.
#include "Platform/AudioUnits/AudioComponentManager.h"
#include "Platform/AudioUnits/AudioComponentValidation.h"
#include "Platform/AudioUnits/FourCharCode.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTextStream>

#include <cstdio>

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

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    platform::AudioComponentDescription description;
    if (arguments.size() == 3)
        description = {.componentType = platform::fourCharCode(arguments[0]),
                       .componentSubType = platform::fourCharCode(arguments[1]),
                       .componentManufacturer = platform::fourCharCode(arguments[2])};
    if (description.componentType == 0 || description.componentSubType == 0 ||
        description.componentManufacturer == 0) {
        print(stderr, QStringLiteral("usage: noteloft-validate <type> <subtype> <manufacturer>\n"
                                     "Each is a code of four characters, for example: aumi mdfx Quil"));
        return 2;
    }
    auto& manager = platform::AudioComponentManager::shared();
    manager.addCarriedComponents();
    const auto components = manager.components(description);
    if (components.isEmpty()) {
        print(stderr, QStringLiteral("No such plug-in is installed"));
        return 1;
    }
    platform::audioComponentValidateWithResults(components.first(), {}, finish);
    return QCoreApplication::exec();
}
