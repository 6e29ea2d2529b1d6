#include "sites/SiteRepresentation.h"

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

} // namespace vlt::sites
