#pragma once

#include "batch/CommandLine.h"
#include "wizard/project/ProjectContext.h"

namespace vlt::batch {

/// Installation, language and project of a command.
struct Surroundings
{
    QString installDir; ///< absolute
    QString language;   ///< language code
    project::ProjectContext project;
};

/// Chooses install directory and language and loads the dictionaries; the directory need not exist.
Place settlePlace(const SplitArguments &arguments);

/// Sets the geodata library up and reads the project. Warns on the error output of a project that
/// names neither files nor a coordinate system.
///
/// @par Errors   MESS_OUV_PRJ_IMP for a project that cannot be read; MESS_CLI_NO_INSTALL_DIR for a
///               missing install directory.
Result<Surroundings> startUp(const GlobalOptions &options);

} // namespace vlt::batch
