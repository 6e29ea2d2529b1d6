#pragma once

#include "batch/Command.h"

#include <optional>

namespace vlt::batch {

/// The help of a command, in the language in use.
QString helpText(const CommandSyntax &syntax, const Place &place);

/// The help of the program, which lists its commands.
QString programHelpText();

/// Versions of the program and of its libraries, one per line.
QString versionText();

/// Prints the fault of the command line and the command that prints the help.
ExitStatus refuseUsage(const Error &fault);

} // namespace vlt::batch
