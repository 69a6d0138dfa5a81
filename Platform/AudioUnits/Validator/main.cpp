// Tries a plug-in: audio-unit-validator <plug-in URI> <bundle directory>. Started by the validation call,
// which reads the framed results from standard output.
#include "Platform/AudioUnits/Validator/PluginValidation.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: audio-unit-validator <plug-in URI> <bundle directory>\n", stderr);
        return 2;
    }
    using enum platform::AudioComponentValidationResult;
    const platform::ResultsChannel channel;
    channel.end(platform::PluginValidation(channel).run(argv[1], argv[2]) ? passed : failed);
    return 0;
}
