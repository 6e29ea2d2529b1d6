#pragma once

#include "batch/CommandLine.h"
#include "wizard/project/ProjectContext.h"

namespace vlt::batch {

/// What a command works in.
struct Surroundings
{
    QString installDir; ///< absolute
    QString language;   ///< language code
    project::ProjectContext project;
};

/// Settles install directory and language and loads the messages; the directory need not be there.
Place settlePlace(const SplitArguments &arguments);

/// Sets the geodata library up and reads the project. Warns on the error output of a project
/// that names nothing.
///
/// @par Errors   MESS_OUV_PRJ_IMP for a project that cannot be read; an install directory that is
/// not there.
Result<Surroundings> startUp(const GlobalOptions &options);

} // namespace vlt::batch
