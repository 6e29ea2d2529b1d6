#pragma once

#include "batch/CommandLine.h"

#include <optional>

namespace vlt::batch {

/// Deals with what needs no work: a wrong command line, --help and --version. None where the
/// command has to run.
///
/// @param examples  shown at the end of the help
std::optional<ExitStatus> answerHelp(const QCommandLineParser &parser,
                                     const Result<GlobalOptions> &options, const QString &examples);

/// Says what is wrong with the command line and where help is.
ExitStatus refuseUsage(const QString &text);

} // namespace vlt::batch
