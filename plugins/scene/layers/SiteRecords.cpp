#include "layers/SiteRecords.h"

#include "layers/BadLayer.h"
#include "layers/LocalFrame.h"
#include "layers/SiteColumns.h"
#include "layers/TableDrivers.h"

#include <cpl_error.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <optional>

namespace vlt::scene {

namespace {

constexpr double AboveAntennasM = 2; ///< what a mast rises above its highest antenna
constexpr double TallestM = 2000;
constexpr double LowestM = -500; ///< ground
constexpr double HighestM = 10000;
constexpr double SteepestDeg = 90;
constexpr double WholeTurnDeg = 360;
constexpr double FarthestM = 3e7; ///< from the middle: no two places of the earth lie further apart

std::optional<double> numberIn(std::string_view text)
{
    std::string plain(text);
    std::replace(plain.begin(), plain.end(), ',', '.');
    const std::size_t begin = std::min(plain.find_first_not_of(" \t+"), plain.size());
    const char *last = plain.data() + plain.size();
    double value = 0;
    const auto [end, fault] = std::from_chars(plain.data() + begin, last, value);
    const bool whole = std::all_of(end, last, [](char c) { return c == ' '; });
    return fault == std::errc() && whole ? std::optional(value) : std::nullopt;
}

/// The number in a field; nothing where there is none, or none within `least` and `most`.
std::optional<double> numberAt(const OGRFeature &feature, int field, double least, double most)
{
    if (field < 0 || !feature.IsFieldSetAndNotNull(field))
        return std::nullopt;
    const bool isText = feature.GetFieldDefnRef(field)->GetType() == OFTString;
    const std::optional<double> value = isText ? numberIn(feature.GetFieldAsString(field))
                                               : std::optional(feature.GetFieldAsDouble(field));
    return value && *value >= least && *value <= most ? value : std::nullopt;
}

class Reader
{
public:
    Reader(OGRLayer &layer, const SiteLayerFile &file, const SiteStyle &style)
        : m_layer(layer)
        , m_style(style)
    {
        const OGRFeatureDefn &definition = *m_layer.GetLayerDefn();
        std::vector<std::string> names;
        names.reserve(static_cast<std::size_t>(definition.GetFieldCount()));
        for (int i = 0; i < definition.GetFieldCount(); ++i)
            names.emplace_back(definition.GetFieldDefn(i)->GetNameRef());
        m_columns = recogniseSiteColumns(names);
        const auto named = std::find(names.begin(), names.end(), file.siteField);
        if (named != names.end())
            m_columns.name = static_cast<int>(named - names.begin());
        if (m_columns.transmitters.size() > MaxTransmitters)
            m_columns.transmitters.resize(MaxTransmitters);
        ignoreOtherFields(names);
    }

    SiteRecords read()
    {
        m_layer.ResetReading();
        while (const OGRFeatureUniquePtr feature = next()) {
            if (m_records.sites.size() == MaxSites) {
                m_records.isCut = true;
                break;
            }
            take(*feature);
        }
        const OGRSpatialReference *srs = m_layer.GetSpatialRef();
        m_records.centre = moveToLocalFrame(srs, m_places);
        m_records.srs = nameOf(srs);
        placeSites();
        return std::move(m_records);
    }

private:
    /// Most columns of a wide table are of no use here.
    void ignoreOtherFields(const std::vector<std::string> &names)
    {
        std::vector<bool> isUsed(names.size());
        const auto use = [&](int field) {
            if (field >= 0)
                isUsed[static_cast<std::size_t>(field)] = true;
        };
        use(m_columns.name);
        use(m_columns.terrainHeight);
        for (const TransmitterColumns &columns : m_columns.transmitters) {
            use(columns.height);
            use(columns.azimuth);
            use(columns.tilt);
        }
        std::vector<const char *> ignored;
        for (std::size_t i = 0; i < names.size(); ++i) {
            if (!isUsed[i])
                ignored.push_back(names[i].c_str());
        }
        ignored.push_back(nullptr);
        m_layer.SetIgnoredFields(ignored.data());
    }

    OGRFeatureUniquePtr next()
    {
        CPLErrorReset(); // a row that could not be placed is no reason to stop
        OGRFeatureUniquePtr feature(m_layer.GetNextFeature());
        if (!feature && CPLGetLastErrorType() == CE_Failure)
            throw BadLayer(CPLGetLastErrorMsg());
        return feature;
    }

    static std::string nameOf(const OGRSpatialReference *srs)
    {
        if (!srs)
            return {};
        const char *authority = srs->GetAuthorityName(nullptr);
        const char *code = srs->GetAuthorityCode(nullptr);
        if (authority && code)
            return std::string(authority) + ':' + code;
        return srs->GetName() ? srs->GetName() : "";
    }

    void take(const OGRFeature &feature)
    {
        const OGRGeometry *geometry = feature.GetGeometryRef();
        if (!geometry || wkbFlatten(geometry->getGeometryType()) != wkbPoint ||
            geometry->IsEmpty()) {
            ++m_records.unplaced;
            return;
        }
        const OGRPoint &point = *geometry->toPoint();
        SiteRecord site;
        if (m_columns.name >= 0)
            site.name = feature.GetFieldAsString(m_columns.name);
        site.foot.z() = numberAt(feature, m_columns.terrainHeight, LowestM, HighestM).value_or(0.0);
        const auto [design, isNew] = m_designs.try_emplace(
            designOf(feature), static_cast<std::uint32_t>(m_records.designs.size()));
        if (isNew)
            m_records.designs.push_back(design->first);
        site.design = design->second;
        m_records.sites.push_back(std::move(site));
        m_places.emplace_back(point.getX(), point.getY());
    }

    PylonDesign designOf(const OGRFeature &feature) const
    {
        PylonDesign design = m_style.pylon;
        double top = 0;
        for (std::size_t i = 0; i < m_columns.transmitters.size(); ++i) {
            const TransmitterColumns &columns = m_columns.transmitters[i];
            const auto height = numberAt(feature, columns.height, 0, TallestM - AboveAntennasM);
            const auto azimuth =
                numberAt(feature, columns.azimuth, -2 * WholeTurnDeg, 2 * WholeTurnDeg);
            if (!height && !azimuth)
                continue;
            Transmitter transmitter;
            transmitter.heightM = height.value_or(UsualAntennaM);
            transmitter.azimuthDeg = std::fmod(azimuth.value_or(0.0), WholeTurnDeg);
            transmitter.beamWidthDeg = azimuth ? 0 : WholeTurnDeg;
            transmitter.tiltDeg =
                numberAt(feature, columns.tilt, -SteepestDeg, SteepestDeg).value_or(0.0);
            transmitter.color = m_style.colors[i % m_style.colors.size()];
            top = std::max(top, transmitter.heightM);
            design.transmitters.push_back(transmitter);
        }
        design.heightM = design.transmitters.empty() ? UsualMastM : top + AboveAntennasM;
        return design;
    }

    /// Gives the sites their places in the frame; those that have none go.
    void placeSites()
    {
        std::size_t kept = 0;
        for (std::size_t i = 0; i < m_places.size(); ++i) {
            const osg::Vec2d &place = m_places[i];
            if (!(place.length() <= FarthestM)) {
                ++m_records.unplaced;
                continue;
            }
            SiteRecord &site = m_records.sites[i];
            site.foot.x() = place.x();
            site.foot.y() = place.y();
            if (kept != i)
                m_records.sites[kept] = std::move(site);
            ++kept;
        }
        m_records.sites.resize(kept);
    }

    OGRLayer &m_layer;
    const SiteStyle &m_style;
    SiteColumns m_columns;
    SiteRecords m_records;
    std::vector<osg::Vec2d> m_places;
    std::map<PylonDesign, std::uint32_t> m_designs;
};

} // namespace

SiteRecords readSiteRecords(const connection::ConnectionString &table, const SiteLayerFile &layer,
                            const SiteStyle &style)
{
    constexpr char Driver[] = "VltTables";
    registerTableDrivers();
    if (!GDALGetDriverByName(Driver))
        throw BadLayer(std::string("the table driver ") + Driver +
                       " is not there; GDAL_DRIVER_PATH has to name its directory");
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler); // rows without a place are counted
    CPLErrorReset();
    const char *const drivers[] = {Driver, nullptr};
    const GDALDatasetUniquePtr dataset(
        GDALDataset::Open(connection::compose(table).c_str(),
                          GDAL_OF_VECTOR | GDAL_OF_READONLY | GDAL_OF_VERBOSE_ERROR, drivers));
    if (!dataset)
        throw BadLayer(CPLGetLastErrorMsg());
    OGRLayer *sites = dataset->GetLayerByName(layer.layer.c_str());
    if (!sites)
        sites = dataset->GetLayer(0);
    SiteRecords records = Reader(*sites, layer, style).read();
    if (records.sites.empty())
        throw BadLayer(table.path + ": none of " + std::to_string(records.unplaced) +
                       " sites has a position");
    return records;
}

} // namespace vlt::scene
