#pragma once

#include "platform/Result.h"
#include "sites/PylonTypes.h"
#include "sites/SectorColorSets.h"

#include <optional>

namespace vlt::sites {

/// How sites are drawn; the values are those of a first run. RepresentationLimits.h has the ranges.
struct SiteRepresentation
{
    double sectorHeight = 20;     ///< metres
    double sectorRadius = 200;    ///< metres
    double sectorSpacing = 2;     ///< metres between two sectors, vertically
    int colorSet = 0;             ///< index into the colour sets; -1 for none
    int symbolicDistance = 10000; ///< metres from which the sectors are drawn
    int pylonType = 0;            ///< index into the pylon types; -1 for none
    int realisticDistance = 1000; ///< metres from which mast and antennas are drawn
    int transparency = 0;         ///< per cent
    double pylonWidth = 2.5;      ///< metres
    int antennaSize = 100;        ///< per cent
};

/// The two catalogues that the representation chooses from, in catalogue order.
struct SiteCatalogues
{
    QList<PylonType> pylonTypes;
    QList<SectorColorSet> colorSets;
};

/// Both catalogues of an installation.
SiteCatalogues loadSiteCatalogues(const QString &installDir, const QString &language);

/// The chosen entry; null where the index is not one of the catalogue's.
const PylonType *chosenPylonType(const SiteRepresentation &representation,
                                 const SiteCatalogues &catalogues);
const SectorColorSet *chosenColorSet(const SiteRepresentation &representation,
                                     const SiteCatalogues &catalogues);

/// Why no site can be drawn; none where a pylon type and a colour set are chosen.
///
/// @return  MESS_MISSING_CONF_FILE with the path of a catalogue that has nothing to choose from, or
///          MESS_NO_LOOK_CHOSEN
std::optional<Error> missingChoice(const SiteRepresentation &representation,
                                   const SiteCatalogues &catalogues, const QString &installDir);

} // namespace vlt::sites
