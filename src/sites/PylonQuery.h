#pragma once

#include "contract/TableKind.h"
#include "sites/SiteRepresentation.h"
#include "tables/TableReading.h"
#include "wizard/project/ProjectContext.h"

namespace vlt::sites {

/// The parts of a pylon query that do not concern the representation of pylons.
struct PylonQuery
{
    contract::TableKind kind = contract::TableKind::Sites;
    QString sourceSrs; ///< system of the table; may be empty
    QString targetSrs; ///< system of the project; may be empty
    QString dataFile;  ///< path of the table
    QString extra;     ///< parameters of links, without a comma at the end; empty for sites
    tables::TableReading reading = {}; ///< options of the table
};

/// The query of a layer, which is also the table connection that reads the sites. The paths in it
/// are relative to the project's directory. Empty if no pylon type or no colour set is chosen.
QString buildPylonQuery(const PylonQuery &query, const SiteRepresentation &representation,
                        const SiteCatalogues &catalogues, const project::ProjectContext &project);

/// The connection that reads the rows of the table with their coordinate systems, without the
/// options of the representation; its path is absolute.
QString placingConnection(const PylonQuery &query);

/// Radius (integer part), height and spacing of sectors, as texts for queries.
QStringList sectorProperties(const SiteRepresentation &representation);

/// The name by which the scene library loads one demonstration site. Empty if no pylon type or no
/// colour set is chosen.
QString buildPreviewPylonUrl(const SiteRepresentation &representation,
                             const SiteCatalogues &catalogues, const QString &installDir);

} // namespace vlt::sites
