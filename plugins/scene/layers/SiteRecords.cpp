#include "plugins/scene/layers/SiteRecords.h"

#include "contract/QueryOptions.h"
#include "linkpath/PathProfiler.h"
#include "plugins/scene/layers/SceneColumns.h"
#include "plugins/scene/parametric/HostileLimits.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/TableReading.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>

namespace vlt::scene {

namespace {

constexpr double MinHeightM = -500; ///< ground
constexpr double MaxHeightM = 10000;
constexpr double MaxTiltDeg = 90;
constexpr double WholeTurnDeg = 360;

class Reader
{
public:
    Reader(OGRLayer &layer, const LayerFile &file, const SiteStyle &style)
        : m_layer(layer)
        , m_style(style)
    {
        const std::vector<std::string> names = fieldNamesOf(m_layer);
        m_columns = sceneColumnsOf(names);
        const auto named = std::find(names.begin(), names.end(), file.siteField);
        if (named != names.end())
            m_columns.name = static_cast<int>(named - names.begin());
        if (m_columns.transmitters.size() > MaxTransmitters)
            m_columns.transmitters.resize(MaxTransmitters);
        readOnlyFields(m_layer, usedFields());
    }

    SiteRecords read(const std::string &terrain)
    {
        m_layer.ResetReading();
        while (const OGRFeatureUniquePtr feature = nextFeature(m_layer)) {
            if (m_records.sites.size() == MaxSites) {
                m_records.isCut = true;
                break;
            }
            take(*feature);
        }
        const std::vector<osg::Vec2d> places = m_places;
        m_records.frame = moveToFrame(m_layer, m_places);
        standOn(terrain, places);
        placeSites();
        return std::move(m_records);
    }

private:
    std::vector<int> usedFields() const
    {
        std::vector<int> fields{m_columns.name, m_columns.terrainHeight};
        for (const TransmitterColumns &columns : m_columns.transmitters)
            fields.insert(fields.end(), {columns.height, columns.azimuth, columns.tilt});
        return fields;
    }

    void take(const OGRFeature &feature)
    {
        const std::optional<osg::Vec2d> place = placeOf(feature);
        if (!place) {
            ++m_records.unplaced;
            return;
        }
        SiteRecord site;
        site.name = textAt(feature, m_columns.name);
        site.row = static_cast<std::uint32_t>(feature.GetFID());
        site.foot.z() =
            numberAt(feature, m_columns.terrainHeight, MinHeightM, MaxHeightM).value_or(NAN);
        const auto [design, isNew] = m_designs.try_emplace(
            designOf(feature), static_cast<std::uint32_t>(m_records.designs.size()));
        if (isNew)
            m_records.designs.push_back(design->first);
        site.design = design->second;
        m_records.sites.push_back(std::move(site));
        m_places.push_back(*place);
    }

    PylonDesign designOf(const OGRFeature &feature)
    {
        PylonDesign design = m_style.pylon;
        double top = 0;
        for (std::size_t i = 0; i < m_columns.transmitters.size(); ++i) {
            const TransmitterColumns &columns = m_columns.transmitters[i];
            const auto height = quantityAt(feature, columns.height, 0,
                                           limits::MastHeightM.maximum - AboveAntennasM);
            const auto azimuth =
                quantityAt(feature, columns.azimuth, -2 * WholeTurnDeg, 2 * WholeTurnDeg);
            // a value that is there and cannot be used must not become a transmitter to all sides
            const bool isUnusable = (!height && hasValue(feature, columns.height)) ||
                                    (!azimuth && hasValue(feature, columns.azimuth));
            if (isUnusable || (!height && !azimuth))
                continue;
            Transmitter transmitter;
            transmitter.heightM = height.value_or(contract::DefaultAntennaHeightM);
            transmitter.azimuthDeg = std::fmod(azimuth.value_or(0.0), WholeTurnDeg);
            transmitter.beamWidthDeg = azimuth ? 0 : WholeTurnDeg;
            transmitter.tiltDeg =
                quantityAt(feature, columns.tilt, -MaxTiltDeg, MaxTiltDeg).value_or(0.0);
            transmitter.color = m_style.colors[i % m_style.colors.size()];
            m_records.transmitters.emplace(columns.number, transmitter.color);
            top = std::max(top, transmitter.heightM);
            design.transmitters.push_back(transmitter);
        }
        design.heightM =
            design.transmitters.empty() ? contract::DefaultPylonHeightM : top + AboveAntennasM;
        return design;
    }

    /// Gives the sites without a ground height that of a terrain.
    ///
    /// @param places  of the sites, in the table's system
    void standOn(const std::string &terrain, const std::vector<osg::Vec2d> &places)
    {
        std::shared_ptr<linkpath::TerrainRaster> raster;
        if (!terrain.empty())
            raster = linkpath::TerrainRaster::open(terrain).file;
        if (raster)
            m_records.terrain = terrain;
        const linkpath::PathProfiler ground(raster, m_layer.GetSpatialRef());
        for (std::size_t i = 0; i < places.size(); ++i) {
            double &footM = m_records.sites[i].foot.z();
            if (std::isnan(footM))
                footM = ground.groundM(places[i].x(), places[i].y()).value_or(0.0);
        }
    }

    /// Transforms the sites to the frame, and removes those that have no position there.
    void placeSites()
    {
        const std::vector<double> north = northDirectionsDeg(m_layer, m_records.frame, m_places);
        std::size_t kept = 0;
        for (std::size_t i = 0; i < m_places.size(); ++i) {
            const osg::Vec2d &place = m_places[i];
            if (std::isnan(place.x())) {
                ++m_records.unplaced;
                continue;
            }
            SiteRecord &site = m_records.sites[i];
            site.foot.x() = place.x();
            site.foot.y() = place.y();
            site.northDeg = static_cast<float>(north[i]);
            if (kept != i)
                m_records.sites[kept] = std::move(site);
            ++kept;
        }
        m_records.sites.resize(kept);
    }

    OGRLayer &m_layer;
    const SiteStyle &m_style;
    SceneColumns m_columns;
    SiteRecords m_records;
    std::vector<osg::Vec2d> m_places;
    std::map<PylonDesign, std::uint32_t> m_designs;
};

} // namespace

double lowestFootM(const PylonRecords &pylons)
{
    const auto lowest = std::min_element(
        pylons.sites.begin(), pylons.sites.end(),
        [](const SiteRecord &a, const SiteRecord &b) { return a.foot.z() < b.foot.z(); });
    return lowest == pylons.sites.end() ? 0 : lowest->foot.z();
}

SiteRecords readSiteRecords(const contract::ConnectionString &table, const LayerFile &layer,
                            const SiteStyle &style, const std::string &terrain)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // rows without a position are counted
    const GDALDatasetUniquePtr dataset = openTable(table);
    OGRLayer *sites = dataset->GetLayerByName(layer.layer.c_str());
    if (!sites)
        sites = dataset->GetLayer(0);
    SiteRecords records = Reader(*sites, layer, style).read(terrain);
    if (records.sites.empty())
        throw BadLayer("MESS_SCENE_UNPLACED_SITES", {std::to_string(records.unplaced), table.path});
    return records;
}

} // namespace vlt::scene
