#include "plugins/scene/layers/LinkRows.h"

#include "contract/LinkEnds.h"
#include "contract/SiteColumns.h"
#include "contract/TransmitterRanges.h"
#include "linkpath/LinkEndReader.h"
#include "plugins/scene/parametric/LinkObject.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/TableReading.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

/// Index of the field with the names of the ends' sites; -1 if there is none.
int siteFieldOf(OGRLayer &ends, const std::string &siteField)
{
    const std::vector<std::string> names = fieldNamesOf(ends);
    const auto found = std::find(names.begin(), names.end(), siteField);
    return found != names.end() ? static_cast<int>(found - names.begin())
                                : contract::recogniseColumns(names).name;
}

/// The number; nothing if it is outside the range.
std::optional<double> within(std::optional<double> number, double min, double max)
{
    return number && *number >= min && *number <= max ? number : std::nullopt;
}

class Reader
{
public:
    Reader(OGRLayer &layer, const std::string &siteField)
        : m_layer(layer)
        , m_ends(*layer.GetLayerDefn(), siteFieldOf(layer, siteField))
    {
        if (!m_ends.isComplete())
            throw BadLayer("MESS_SCENE_NO_END_FIELDS",
                           {contract::LinkRowField, contract::LinkEndField});
        const auto fields = m_ends.fields();
        readOnlyFields(m_layer, {fields.begin(), fields.end()});
    }

    LinkRows read()
    {
        m_layer.ResetReading();
        while (const OGRFeatureUniquePtr feature = nextFeature(m_layer)) {
            take(m_ends.add(*feature));
            if (m_links.isCut)
                break;
        }
        take(m_ends.finish());
        placeRows();
        if (const OGRSpatialReference *srs = m_layer.GetSpatialRef())
            m_links.srs = *srs;
        return std::move(m_links);
    }

private:
    void take(std::optional<linkpath::PairedLink> link)
    {
        if (!link)
            return;
        if (!link->isPlaced()) {
            ++m_links.unplaced;
            return;
        }
        m_links.isCut = m_links.rows.size() == MaxLinks;
        if (m_links.isCut)
            return;
        LinkRow row;
        row.row = static_cast<std::uint32_t>(link->row);
        row.name = std::move(link->name);
        for (std::size_t i = 0; i < row.ends.size(); ++i) {
            linkpath::PairedLink::End &end = link->ends[i];
            end.frequencyMHz = within(end.frequencyMHz, MinMHz, MaxMHz);
            row.ends[i].site = std::move(end.site);
            row.ends[i].end = end.place;
            row.ends[i].end.heightM = within(end.place.heightM, contract::AntennaHeightM.minimum,
                                             contract::AntennaHeightM.maximum);
        }
        row.frequencyMHz = link->frequencyMHz().value_or(0.0);
        m_links.rows.push_back(std::move(row));
    }

    /// Transforms the ends to the frame, and removes links that have no position there.
    void placeRows()
    {
        std::vector<osg::Vec2d> places;
        places.reserve(2 * m_links.rows.size());
        for (const LinkRow &row : m_links.rows) {
            for (const LinkRowEnd &end : row.ends)
                places.emplace_back(end.end.x, end.end.y);
        }
        m_links.frame = moveToFrame(m_layer, places);
        for (std::size_t i = 0; i < places.size(); ++i)
            m_links.rows[i / 2].ends[i % 2].place = places[i];
        m_links.unplaced += std::erase_if(m_links.rows, [](const LinkRow &row) {
            return std::isnan(row.ends[0].place.x()) || std::isnan(row.ends[1].place.x());
        });
    }

    OGRLayer &m_layer;
    linkpath::LinkEndReader m_ends;
    LinkRows m_links;
};

} // namespace

LinkRows readLinkRows(const contract::ConnectionString &table, const LayerFile &layer)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // rows without a position are counted
    const GDALDatasetUniquePtr dataset = openTable(table);
    OGRLayer *ends = dataset->GetLayerByName(layer.endLayer.c_str());
    if (!ends)
        ends = dataset->GetLayer(contract::LinkEndLayerIndex);
    if (!ends)
        throw BadLayer("MESS_SCENE_NO_END_LAYER", {table.path});
    LinkRows links = Reader(*ends, layer.siteField).read();
    if (links.rows.empty())
        throw BadLayer("MESS_SCENE_UNPLACED_LINKS", {std::to_string(links.unplaced), table.path});
    return links;
}

} // namespace vlt::scene
