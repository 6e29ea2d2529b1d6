#include "plugins/scene/layers/LinkRows.h"

#include "plugins/scene/layers/SiteColumns.h"
#include "plugins/scene/parametric/LinkObject.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/TableReading.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double HighestAntennaM = 2000;

/// Fields of a layer of link ends, by their index; -1 where there is none.
struct EndColumns
{
    explicit EndColumns(const std::vector<std::string> &names, const std::string &siteField)
    {
        const auto find = [&names](std::string_view name) {
            const auto found = std::find(names.begin(), names.end(), name);
            return found == names.end() ? -1 : static_cast<int>(found - names.begin());
        };
        site = find(siteField);
        if (site < 0)
            site = recogniseSiteColumns(names).name;
        row = find("Link row");
        end = find("End");
        height = find("Transmitter-1 Height (m)");
        frequency = find("Frequency (MHz)");
        if (row < 0 || end < 0)
            throw BadLayer("the layer of link ends has no field \"Link row\" or \"End\"");
    }

    int site;
    int row;
    int end;
    int height;
    int frequency;
};

class Reader
{
public:
    Reader(OGRLayer &layer, const std::string &siteField)
        : m_layer(layer)
        , m_columns(fieldNamesOf(layer), siteField)
    {
        readOnlyFields(m_layer, {m_columns.site, m_columns.row, m_columns.end, m_columns.height,
                                 m_columns.frequency});
    }

    LinkRows read()
    {
        m_layer.ResetReading();
        while (const OGRFeatureUniquePtr feature = nextFeature(m_layer)) {
            const GIntBig number = feature->GetFieldAsInteger64(m_columns.row);
            if (number != m_number && !startRow(number))
                break;
            take(*feature);
        }
        finishRow();
        placeRows();
        if (const OGRSpatialReference *srs = m_layer.GetSpatialRef())
            m_links.srs = *srs;
        return std::move(m_links);
    }

private:
    bool startRow(GIntBig number)
    {
        finishRow();
        m_links.isCut = m_links.rows.size() == MaxLinks;
        m_number = number;
        return !m_links.isCut;
    }

    void finishRow()
    {
        if (m_number >= 0 && !m_links.isCut) {
            if (m_hasPlace[0] && m_hasPlace[1])
                m_links.rows.push_back(std::move(m_row));
            else
                ++m_links.unplaced;
        }
        m_row = {};
        m_hasPlace = {};
        m_number = -1;
    }

    void take(const OGRFeature &feature)
    {
        const std::size_t which = textAt(feature, m_columns.end) == "B" ? 1 : 0;
        const double frequency =
            numberAt(feature, m_columns.frequency, LowestMHz, HighestMHz).value_or(0.0);
        if (which == 0 || m_row.frequencyMHz == 0)
            m_row.frequencyMHz = frequency > 0 ? frequency : m_row.frequencyMHz;
        LinkRowEnd &end = m_row.ends[which];
        end.site = textAt(feature, m_columns.site);
        end.end.heightM = numberAt(feature, m_columns.height, 0, HighestAntennaM);
        const std::optional<osg::Vec2d> place = placeOf(feature);
        m_hasPlace[which] = place.has_value();
        if (!place)
            return;
        end.end.x = place->x();
        end.end.y = place->y();
    }

    /// Gives the ends their places in the frame; links that have none go.
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
    EndColumns m_columns;
    LinkRows m_links;
    GIntBig m_number = -1; ///< of the row that is being read
    LinkRow m_row;
    std::array<bool, 2> m_hasPlace{};
};

} // namespace

LinkRows readLinkRows(const contract::ConnectionString &table, const LayerFile &layer)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // rows without a place are counted
    const GDALDatasetUniquePtr dataset = openTable(table);
    OGRLayer *ends = dataset->GetLayerByName(layer.endLayer.c_str());
    if (!ends)
        ends = dataset->GetLayer(1);
    if (!ends)
        throw BadLayer(table.path + ": it has no layer of link ends");
    LinkRows links = Reader(*ends, layer.siteField).read();
    if (links.rows.empty())
        throw BadLayer(table.path + ": none of " + std::to_string(links.unplaced) +
                       " links has a position");
    return links;
}

} // namespace vlt::scene
