#include "sites/SiteRepresentation.h"

#include "contract/Installation.h"
#include "platform/Paths.h"

namespace vlt::sites {

namespace {

template<typename T>
const T *entry(const QList<T> &list, int index)
{
    return index >= 0 && index < list.size() ? &list.at(index) : nullptr;
}

} // namespace

SiteCatalogues loadSiteCatalogues(const QString &installDir, const QString &language)
{
    return {loadPylonTypes(installDir, language), loadSectorColorSets(installDir, language)};
}

const PylonType *chosenPylonType(const SiteRepresentation &representation,
                                 const SiteCatalogues &catalogues)
{
    return entry(catalogues.pylonTypes, representation.pylonType);
}

const SectorColorSet *chosenColorSet(const SiteRepresentation &representation,
                                     const SiteCatalogues &catalogues)
{
    return entry(catalogues.colorSets, representation.colorSet);
}

std::optional<Error> missingChoice(const SiteRepresentation &representation,
                                   const SiteCatalogues &catalogues, const QString &installDir)
{
    const auto missing = [&installDir](const QString &catalogue) {
        return Error{QStringLiteral("MESS_MISSING_CONF_FILE"),
                     QStringLiteral("A configuration file is missing"),
                     platform::installedFile(installDir, contract::PylonFolder, catalogue)};
    };
    if (catalogues.pylonTypes.isEmpty())
        return missing(PylonCatalogue);
    if (catalogues.colorSets.isEmpty())
        return missing(ColorCatalogue);
    if (chosenPylonType(representation, catalogues) && chosenColorSet(representation, catalogues))
        return std::nullopt;
    return Error{QStringLiteral("MESS_NO_LOOK_CHOSEN"),
                 QStringLiteral("No type of pylons or no sector colors are chosen"),
                 {}};
}

} // namespace vlt::sites
