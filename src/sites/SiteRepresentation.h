#pragma once

#include "contract/QueryOptions.h"
#include "platform/Result.h"
#include "sites/PylonTypes.h"
#include "sites/SectorColorSets.h"

#include <optional>

namespace vlt::sites {

/// The representation of sites, with the values of a first run. QueryOptions.h has the ranges.
struct SiteRepresentation
{
    double sectorHeightM = contract::query::SectorHeightM.firstRun;
    double sectorRadiusM = contract::query::SectorRadiusM.firstRun;
    /// Vertical distance between two sectors.
    double sectorSpacingM = contract::query::SectorSpacingM.firstRun;
    /// Index into the colour sets; -1 for none.
    int colorSet = 0;
    /// Maximum distance at which sectors are drawn.
    int symbolicDistanceM = contract::query::SymbolicDistanceM.firstRun;
    /// Index into the pylon types; -1 for none.
    int pylonType = 0;
    /// Maximum distance at which mast and antennas are drawn.
    int realisticDistanceM = contract::query::RealisticDistanceM.firstRun;
    /// Transparency of the sectors.
    int transparencyPercent = contract::query::TransparencyPercent.firstRun;
    double pylonWidthM = contract::query::PylonWidthM.firstRun;
    int antennaScalePercent = contract::query::AntennaScalePercent.firstRun;
};

/// The two catalogues that the representation chooses from, in catalogue order.
struct SiteCatalogues
{
    QList<PylonType> pylonTypes;
    QList<SectorColorSet> colorSets;
};

/// Both catalogues of an installation.
SiteCatalogues loadSiteCatalogues(const QString &installDir, const QString &language);

/// The chosen entry; null if the catalogue has no entry of that index.
const PylonType *chosenPylonType(const SiteRepresentation &representation,
                                 const SiteCatalogues &catalogues);
const SectorColorSet *chosenColorSet(const SiteRepresentation &representation,
                                     const SiteCatalogues &catalogues);

/// Why no site can be drawn; none if a pylon type and a colour set are chosen.
///
/// @return  MESS_MISSING_CONF_FILE with the path of a catalogue without entries, or
///          MESS_NO_LOOK_CHOSEN
std::optional<Error> missingChoice(const SiteRepresentation &representation,
                                   const SiteCatalogues &catalogues, const QString &installDir);

} // namespace vlt::sites
