#include "Noteloft/LaunchOptions.h"

namespace noteloft {

LaunchOptions LaunchOptions::parse(const QStringList& arguments) {
    LaunchOptions options;
    for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
        if (*argument == u"--screenshot" && argument + 1 != arguments.end())
            options.screenshot = *++argument;
#ifdef NOTELOFT_DEVELOPER_MODE
        else if (*argument == u"--developer")
            options.developerMode = true;
#endif
        else if (argument->startsWith(u'-'))
            options.error = u"noteloft: unknown or incomplete option: " + *argument;
        else
            options.urls << *argument;
    }
    return options;
}

} // namespace noteloft
