#include "plugins/tables/ogr/ZoneSurvey.h"

#include "contract/TableTexts.h"
#include "plugins/tables/ogr/FieldCells.h"

#include <algorithm>

namespace vlt::driver {

void surveyZones(const std::vector<PointFields *> &points, TableDeclaration &declaration,
                 const TableProfile &table, const std::function<std::unique_ptr<DataRows>()> &rows)
{
    if (!std::all_of(points.begin(), points.end(),
                     [](const PointFields *point) { return point->utm.has_value(); }))
        return;
    const std::optional<UtmGrid> only = points.front()->utm->only;
    bool areSeveral = !std::all_of(points.begin(), points.end(), [&](const PointFields *point) {
        return only && point->utm->only == only;
    });
    FieldCells cells(table);
    std::vector<RowProblem> problems; // they are reported when the rows are read again
    const std::unique_ptr<DataRows> walk = areSeveral ? nullptr : rows();
    while (!areSeveral && walk->advance()) {
        problems.clear();
        cells.take(walk->cells(), problems);
        areSeveral = std::any_of(points.begin(), points.end(), [&](const PointFields *point) {
            const std::optional<UtmGrid> grid = gridOfRow(*point, cells.cells());
            return grid && grid != only;
        });
    }
    if (!areSeveral)
        return;
    for (PointFields *point : points)
        point->utm->only.reset();
    declaration.unit = CoordinateUnit::Degrees;
    declaration.epsg = points.front()->utm->epsg();
}

void addZoneProblems(const PointFields &point, ProblemList &problems)
{
    using Text = contract::TableTextId;
    if (!point.utm || !point.utm->notation.isHemisphereAssumed())
        return;
    const Text text = point.utm->notation.isAssumedSouth() ? Text("MESS_TAB_UTM_SOUTH")
                                                           : Text("MESS_TAB_UTM_NORTH");
    problems.add({0, {}, false, contract::formatted(text)});
}

} // namespace vlt::driver
