#pragma once

#include "platform/Result.h"

#include <QString>

/// Values from a builder project (.gvw), a text of labelled lines in UTF-8, in Latin-1, or in
/// UTF-16 or UTF-32 with a byte order mark. File names in it, also those with backslashes, are made
/// absolute relative to the project's directory. The files are not opened.
namespace vlt::project {

/// First terrain file: the text after "Files :" in the section "DEM Layers", up to the end of the
/// line.
///
/// @return      absolute path, or empty if the project names no terrain file
/// @par Errors  MESS_ERR_NOM_FICHIER for an empty project path; MESS_OUV_PRJ_IMP, with the
///              path, for a project that is not a regular file or cannot be read.
Result<QString> terrainFile(const QString &projectPath);

/// File of the first vector layer whose name contains build, bldg, bat or bât in upper or lower
/// case. The search starts after the label of the first terrain file, if there is one, and ends at
/// the first layer without a file label.
///
/// @return      absolute path, or empty without such a layer
/// @par Errors  those of terrainFile()
Result<QString> buildingVectorFile(const QString &projectPath);

/// The reference projection in the section "DEM Layers"; empty without one or if the project cannot
/// be read.
QString referenceProjection(const QString &projectPath);

/// Whether a readable project has none of these values; it may then be another kind of file.
bool namesNothing(const QString &projectPath);

/// Warning about such a project, in the chosen language.
QString namesNothingText();

} // namespace vlt::project
