// Tries a plug-in: audio-unit-validator <plug-in URI> <bundle directory>. Started by the validation call,
// which reads the framed results from standard output.
#include "Platform/AudioUnits/Validator/PluginValidation.h"

#include <cstdio>
#include <string_view>

namespace {

constexpr const char* usage = "Usage: audio-unit-validator <plug-in URI> <bundle directory>\n"
                              "Tries a plug-in and writes framed results; noteloft-validate shows them.\n";

} // namespace

int main(int argc, char** argv) {
    const std::string_view option = argc == 2 ? argv[1] : "";
    if (option == "--version" || option == "-v") {
        std::puts("audio-unit-validator " NOTELOFT_VERSION);
        return 0;
    }
    if (argc != 3) {
        const bool isAsked = option == "--help" || option == "-h";
        std::fputs(usage, isAsked ? stdout : stderr);
        return isAsked ? 0 : 2;
    }
    using enum platform::AudioComponentValidationResult;
    const platform::ResultsChannel channel;
    channel.end(platform::PluginValidation(channel).run(argv[1], argv[2]) ? passed : failed);
    return 0;
}
