#pragma once

#include "contract/TableKind.h"
#include "sites/SiteRepresentation.h"
#include "tables/TableReading.h"
#include "wizard/project/ProjectContext.h"

namespace vlt::sites {

/// What a pylon query is about, besides the look of the pylons.
struct PylonQuery
{
    contract::TableKind kind = contract::TableKind::Sites;
    QString sourceSrs; ///< system of the table; may be empty
    QString targetSrs; ///< system of the project; may be empty
    QString dataFile;  ///< path of the table
    QString extra;     ///< further parameters of links, without a comma at the end; empty for sites
    tables::TableReading reading = {}; ///< how the table is read
};

/// The query that a layer carries: at the same time the table connection from which the sites are
/// read. The paths in it are relative to the project's directory. Empty where no pylon type or no
/// colour set is chosen.
QString buildPylonQuery(const PylonQuery &query, const SiteRepresentation &representation,
                        const SiteCatalogues &catalogues, const project::ProjectContext &project);

/// The connection by which the rows of the table are read and placed, without the look of anything;
/// its path is absolute.
QString placingConnection(const PylonQuery &query);

/// Radius (its whole part), height and spacing of sectors, as queries have them.
QStringList sectorProperties(const SiteRepresentation &representation);

/// The name under which the scene library loads one demonstration site. Empty as above.
QString buildPreviewPylonUrl(const SiteRepresentation &representation,
                             const SiteCatalogues &catalogues, const QString &installDir);

} // namespace vlt::sites
