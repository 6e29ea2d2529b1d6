#pragma once

#include "platform/Result.h"

#include <QString>

/// What other pages take out of a builder project (.gvw), a text of labelled lines in UTF-8, in
/// Latin-1, or in UTF-16 or UTF-32 with a byte order mark. File names found in it are made absolute
/// against the project's directory, also those with backslashes; they are not opened here.
namespace vlt::project {

/// First terrain file: what follows "Files :" in the section "DEM Layers", up to the end of that
/// line.
///
/// @return      absolute path, or empty where the project names no terrain file
/// @par Errors  MESS_ERR_NOM_FICHIER for an empty project path; MESS_OUV_PRJ_IMP, with the
///              path, for a project that is no regular file or cannot be read.
Result<QString> terrainFile(const QString &projectPath);

/// File of the first vector layer whose name holds build, bldg, bat or bât in any case. Layers are
/// looked for after the first terrain file's label where there is one, and up to the first layer
/// without a file label.
///
/// @return      absolute path, or empty where there is no such layer
/// @par Errors  those of terrainFile()
Result<QString> buildingVectorFile(const QString &projectPath);

/// Text of the reference projection of the section "DEM Layers"; empty where there is none or the
/// project cannot be read.
QString referenceProjection(const QString &projectPath);

/// Whether none of the above is found in a project that can be read: it may be no project at all.
bool namesNothing(const QString &projectPath);

/// Warning about such a project, in the chosen language.
QString namesNothingText();

} // namespace vlt::project
