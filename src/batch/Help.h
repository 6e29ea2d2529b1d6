#pragma once

#include "batch/Command.h"

#include <optional>

namespace vlt::batch {

/// The whole help of a command, in the language in use.
QString helpText(const CommandSyntax &syntax, const Place &place);

/// The help of the program, which lists its commands.
QString programHelpText();

/// Versions of the program and of the libraries that it works with, a line each.
QString versionText();

/// Says what is wrong with the command line and where help is.
ExitStatus refuseUsage(const QString &text);

} // namespace vlt::batch
