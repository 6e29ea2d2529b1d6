#include "city/FootprintReader.h"

#include "city/FootprintSource.h"
#include "city/HeightRule.h"
#include "city/RingArea.h"
#include "contract/BadLayer.h"
#include "contract/Stopped.h"
#include "localfiles/FeatureReading.h"
#include "localfiles/NoNetwork.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>

namespace vlt::city {

namespace {

using contract::BadLayer;
using contract::LeftOutReason;
using contract::Stopped;

constexpr std::size_t FeaturesPerReport = 2000;
constexpr int DeepestCollection = 8;

/// Adds the polygons of features to the arrays of Footprints.
class FootprintBuilder
{
public:
    explicit FootprintBuilder(Footprints &footprints) : m_footprints(footprints) {}

    /// Adds a feature with its buildings; false, without adding anything, if the geometry has no
    /// polygon with an area.
    bool add(const OGRGeometry &geometry, const Footprints::Feature &feature, float heightM,
             float bottomM)
    {
        m_heightM = heightM;
        m_bottomM = bottomM;
        const std::size_t before = m_footprints.buildings.size();
        addParts(geometry, 0);
        const bool isAdded = m_footprints.buildings.size() > before;
        if (isAdded)
            m_footprints.features.push_back(feature);
        return isAdded;
    }

private:
    void addParts(const OGRGeometry &geometry, int depth)
    {
        const OGRwkbGeometryType type = wkbFlatten(geometry.getGeometryType());
        if (type == wkbPolygon || type == wkbTriangle)
            addPolygon(*geometry.toPolygon());
        else if (depth < DeepestCollection && OGR_GT_IsSubClassOf(type, wkbGeometryCollection))
            for (const OGRGeometry *part : *geometry.toGeometryCollection())
                addParts(*part, depth + 1);
        else if (type == wkbPolyhedralSurface || type == wkbTIN)
            for (const OGRPolygon *part : *geometry.toPolyhedralSurface())
                addPolygon(*part);
    }

    void addPolygon(const OGRPolygon &polygon)
    {
        const OGRLinearRing *outer = polygon.getExteriorRing();
        const auto ringBegin = static_cast<std::uint32_t>(m_footprints.rings.size());
        if (!outer || !addRing(*outer, false))
            return;
        for (int i = 0; i < polygon.getNumInteriorRings(); ++i)
            addRing(*polygon.getInteriorRing(i), true);
        m_footprints.buildings.push_back(
            {ringBegin, static_cast<std::uint32_t>(m_footprints.rings.size()), m_heightM,
             static_cast<std::uint32_t>(m_footprints.features.size()), m_bottomM});
    }

    bool addRing(const OGRLinearRing &ring, bool isHole)
    {
        std::vector<Place> &positions = m_footprints.positions;
        const std::size_t begin = positions.size();
        const int count = ring.getNumPoints();
        for (int i = 0; i < count; ++i) {
            const Place position{ring.getX(i), ring.getY(i)};
            const bool isNew = positions.size() == begin || position != positions.back();
            if (isNew && std::isfinite(position.x) && std::isfinite(position.y))
                positions.push_back(position);
        }
        while (positions.size() > begin + 1 && positions.back() == positions[begin])
            positions.pop_back();
        if (!hasArea(std::span(positions).subspan(begin))) {
            positions.resize(begin);
            return false;
        }
        m_footprints.rings.push_back({static_cast<std::uint32_t>(begin),
                                      static_cast<std::uint32_t>(positions.size()), isHole});
        return true;
    }

    Footprints &m_footprints;
    float m_heightM = 0;
    float m_bottomM = 0;
};

/// Reads the features of a layer as footprints.
class Reader
{
public:
    Reader(OGRLayer &layer, const contract::BuildingFootprints &source, ReadFootprints &read)
        : m_rule(source.heights)
        , m_read(read)
        , m_builder(read.footprints)
        , m_height(findField(layer, source.heightField))
        , m_elseHeight(findField(layer, m_rule.elseField))
        , m_ground(m_rule.base == contract::BaseRule::Field ? findField(layer, m_rule.baseField)
                                                            : -1)
        , m_bottom(findField(layer, m_rule.bottomField))
    {}

    std::vector<int> fields() const { return {m_height, m_elseHeight, m_ground, m_bottom}; }

    /// Adds a feature, or the reason why it is left out.
    void take(const OGRFeature &feature)
    {
        const auto resolved =
            resolveHeight(m_rule, heightAt(feature, m_height), heightAt(feature, m_elseHeight));
        std::optional<LeftOutReason> &fate = m_read.fates.emplace_back();
        if (const LeftOutReason *reason = std::get_if<LeftOutReason>(&resolved))
            fate = *reason;
        else if (!addShape(feature, std::get<ResolvedHeight>(resolved)))
            fate = LeftOutReason::NoShape;
    }

private:
    bool addShape(const OGRFeature &feature, const ResolvedHeight &height)
    {
        const OGRGeometry *shape = feature.GetGeometryRef();
        OGRGeometryUniquePtr straight;
        if (shape && shape->hasCurveGeometry(FALSE)) {
            straight.reset(shape->getLinearGeometry());
            shape = straight.get();
        }
        Footprints::Feature kept{feature.GetFID(),
                                 static_cast<std::uint32_t>(m_read.fates.size() - 1)};
        if (const auto ground = metresAt(feature, m_ground))
            kept.groundM = static_cast<float>(*ground);
        kept.source = height.source;
        kept.isAboveSea = height.isAboveSea;
        const double bottomM = std::max(metresAt(feature, m_bottom).value_or(0), 0.0);
        return shape && m_builder.add(*shape, kept, static_cast<float>(height.valueM),
                                      static_cast<float>(bottomM));
    }

    /// A number in metres, or in levels that the text names.
    std::optional<double> metresAt(const OGRFeature &feature, int field) const
    {
        const std::optional<ReadHeight> read = heightAt(feature, field);
        if (!read || std::abs(read->number) > MaxBuildingHeightM)
            return std::nullopt;
        const bool isLevels = read->unit == contract::HeightUnit::Levels;
        return read->number * (isLevels ? m_rule.levelHeightM : 1);
    }

    const contract::BuildingHeights &m_rule;
    ReadFootprints &m_read;
    FootprintBuilder m_builder;
    int m_height;
    int m_elseHeight;
    int m_ground;
    int m_bottom;
};

/// The next feature; null after the last one, and if the rest cannot be read, which adds a notice.
OGRFeatureUniquePtr nextReadable(OGRLayer &layer, std::size_t features, Notices &notices)
{
    try {
        return localfiles::nextFeature(layer);
    } catch (const BadLayer &fault) {
        if (features == 0)
            throw;
        notices.push_back(contract::formatted("MESS_SCENE_READ_PARTLY",
                                              {std::to_string(features), fault.what()}));
    }
    return nullptr;
}

void readFeatures(OGRLayer &layer, Reader &reader, ReadFootprints &read, Notices &notices,
                  const Progress &progress)
{
    const auto expected = static_cast<double>(std::max<GIntBig>(layer.GetFeatureCount(FALSE), 1));
    while (const OGRFeatureUniquePtr feature = nextReadable(layer, read.fates.size(), notices)) {
        if (read.footprints.positions.size() > MaxPositions) {
            notices.push_back(contract::formatted("MESS_SCENE_SHOWN_PARTLY",
                                                  {std::to_string(read.fates.size())}));
            return;
        }
        reader.take(*feature);
        if (read.fates.size() % FeaturesPerReport == 0 &&
            !progress(std::min(static_cast<double>(read.fates.size()) / expected, 1.0)))
            throw Stopped{};
    }
}

} // namespace

ReadFootprints readFootprints(const std::string &path, const contract::BuildingFootprints &source,
                              Notices &notices, const Progress &progress)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset = openFootprints(path);
    OGRLayer &layer = findLayer(*dataset, source.layer);
    ReadFootprints read;
    Reader reader(layer, source, read);
    select(layer, source.where, reader.fields());
    if (const OGRSpatialReference *srs = layer.GetSpatialRef(); srs && !srs->IsEmpty()) {
        read.srs = *srs;
        read.srs->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    }
    readFeatures(layer, reader, read, notices, progress);
    if (read.fates.empty() && !source.where.empty())
        throw BadLayer("MESS_SCENE_EMPTY_FILTER", {source.where});
    return read;
}

} // namespace vlt::city
