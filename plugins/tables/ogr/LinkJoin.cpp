#include "plugins/tables/ogr/LinkJoin.h"

#include "plugins/tables/links/LinkLayout.h"
#include "plugins/tables/ogr/FieldCells.h"
#include "plugins/tables/sites/SiteLayout.h"

namespace vlt::driver {

int endSiteSuitability(const TableProfile &start, const Vocabulary &vocabulary)
{
    if (holdsLinks(start, vocabulary) ||
        !holdsPositions(recogniseSiteLayout(start, vocabulary).point, start.fields))
        return 0;
    return siteSuitability(start, vocabulary);
}

std::optional<EndSites> readEndSites(const SecondTable &sites)
{
    const TableProfile &table = sites.profile();
    const SiteLayout layout = recogniseSiteLayout(table, installedVocabulary().words);
    const SiteRoles &roles = layout.roles;
    if (!layout.point.found() || (roles.siteId < 0 && roles.siteName < 0))
        return std::nullopt;
    auto directory = std::make_shared<SiteDirectory>(layout.unit);
    EndSites found = {directory, layout, {}};
    const PositionReader positions(table, layout.point, layout.unit);
    FieldCells cells(table);
    std::vector<RowProblem> problems;
    const std::unique_ptr<DataRows> rows = sites.rows();
    while (rows->advance()) {
        problems.clear();
        const int64_t row = rows->rowNumber();
        cells.take(rows->cells(), problems);
        directory->add(fieldText(cells.cells(), roles.siteId),
                       fieldText(cells.cells(), roles.siteName),
                       positions.read(row, cells.cells(), problems));
        for (RowProblem &problem : problems) {
            problem.isError = false; // it is no row of the links
            found.problems.add(sites.located(std::move(problem)));
        }
    }
    return found;
}

} // namespace vlt::driver
