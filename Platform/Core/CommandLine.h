#pragma once

#include <optional>

class QCommandLineParser;

namespace platform {

/// Reads a program's command line, for which there need be no application object yet. The parser gets
/// `--help` and
/// `--version`, which this answers. Returns the program's exit status if it is to end: 0 after an answer, 2
/// after the message for a command line that `parser` refuses.
std::optional<int> readCommandLine(QCommandLineParser& parser, int argc, char** argv);

/// Says on standard error what is wrong with the command line of `program`, its `argv[0]`, and returns 2.
int refuseCommandLine(const char* program, const char* fault);

} // namespace platform
