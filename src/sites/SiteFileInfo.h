#pragma once

#include "platform/Result.h"
#include "sites/ProjectContext.h"
#include "sites/SiteColumnSet.h"
#include "sites/SiteSystems.h"

#include <optional>

namespace vlt::sites {

/// What the add-site page knows of the table that the user picked.
struct SiteFileInfo
{
    bool valid = false; ///< whether a layer can be made of it
    QString filePath;   ///< as picked, once the file opened; kept for a table without sites
    QString fileDir;    ///< absolute directory of the file
    QString layerName;
    QString nameField;         ///< column whose value names a site
    bool hasNameField = false; ///< whether the table has it, in any case of letters
    SiteColumnSet columns;     ///< those that were recognised
    QString description;       ///< translated text for the file label; empty unless valid
    QString format;            ///< which tool exported the file, as the file says
    QString unit;              ///< "METERS", "DMS", else decimal degrees
    QString epsg;              ///< code that the file declares; "0" or empty for none
    qint64 rowCount = 0;       ///< sites
    SiteSystems systems;       ///< to give to the choosers

    /// Why the file is not valid: MESS_ERR_OPEN_SITE or MESS_ERR_EMPTY_SITE; none for an empty
    /// path.
    std::optional<Error> error;
    QString errorDetail; ///< the driver's own reason; may be empty
};

/// Opens `path` as a site table and tells what it holds and which systems go with it in the
/// project. An empty path gives an empty value without an error.
SiteFileInfo readSiteFileInfo(const QString &path, const ProjectContext &project);

/// The column that names a site in the exports of a tool: "Site name", "NAME", "SITE ID" or "Site
/// ID".
QString siteNameField(const QString &format);

/// Warns of a table without the column that names its sites; none where it is there.
std::optional<Problem> missingNameField(const SiteFileInfo &info);

/// The line about format, coordinates and unit, in the chosen language. Only a dictionary's text
/// takes the values in; the built-in English one has no places for them.
QString describeSiteFile(const QString &format, const QString &unit);

} // namespace vlt::sites
