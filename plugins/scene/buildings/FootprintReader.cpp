#include "plugins/scene/buildings/FootprintReader.h"

#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"
#include "localfiles/OpenLocal.h"
#include "plugins/scene/buildings/RoofTriangles.h"
#include "plugins/scene/reading/BadLayer.h"
#include "plugins/scene/reading/Stopped.h"
#include "plugins/scene/reading/TableReading.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vlt::scene {

namespace {

constexpr double Endless = std::numeric_limits<double>::infinity();
constexpr std::size_t FeaturesPerReport = 2000;
constexpr double MinAreaShare = 1e-9; ///< as a share of the square of a ring's extent
constexpr int DeepestCollection = 8;

/// Adds the polygons of features to the arrays of Footprints.
class FootprintBuilder
{
public:
    explicit FootprintBuilder(Footprints &footprints) : m_footprints(footprints) {}

    /// Adds a building; false, without adding anything, if the geometry has no polygon with an
    /// area.
    bool add(const OGRGeometry &geometry, float heightM)
    {
        const auto ringBegin = static_cast<std::uint32_t>(m_footprints.rings.size());
        addParts(geometry, 0);
        const auto ringEnd = static_cast<std::uint32_t>(m_footprints.rings.size());
        if (ringBegin < ringEnd)
            m_footprints.buildings.push_back({ringBegin, ringEnd, heightM});
        return ringBegin < ringEnd;
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
        if (!outer || !addRing(*outer, false))
            return;
        for (int i = 0; i < polygon.getNumInteriorRings(); ++i)
            addRing(*polygon.getInteriorRing(i), true);
    }

    bool addRing(const OGRLinearRing &ring, bool isHole)
    {
        std::vector<osg::Vec2d> &positions = m_footprints.positions;
        const std::size_t begin = positions.size();
        const int count = ring.getNumPoints();
        for (int i = 0; i < count; ++i) {
            const osg::Vec2d position(ring.getX(i), ring.getY(i));
            const bool isNew = positions.size() == begin || position != positions.back();
            if (isNew && std::isfinite(position.x()) && std::isfinite(position.y()))
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

    bool hasArea(std::span<const osg::Vec2d> ring)
    {
        if (ring.size() < 3)
            return false;
        double doubled = 0;
        double extent = 0;
        osg::Vec2d before = ring.back() - ring.front();
        for (const osg::Vec2d &position : ring) {
            const osg::Vec2d at = position - ring.front();
            doubled += before.x() * at.y() - before.y() * at.x();
            extent = std::max({extent, std::abs(at.x()), std::abs(at.y())});
            before = at;
        }
        const double least = MinAreaShare * extent * extent;
        return std::abs(doubled) > least || crossedArea(ring) * 2 > least;
    }

    /// Area of a ring that may cross itself: the signed areas of its parts may cancel out.
    double crossedArea(std::span<const osg::Vec2d> ring)
    {
        std::vector<osg::Vec2d> near(ring.begin(), ring.end());
        for (osg::Vec2d &position : near)
            position -= ring.front();
        m_roof.clear();
        m_roof.addRing(near);
        m_roof.cut();
        return m_roof.area();
    }

    Footprints &m_footprints;
    RoofTriangles m_roof;
};

GDALDatasetUniquePtr openFootprints(const std::string &file)
{
    if (!localfiles::isLocalDataset(file))
        throw BadLayer("MESS_SCENE_NO_FOOTPRINTS", {file});
    CPLErrorReset();
    GDALDatasetUniquePtr dataset = localfiles::openVector(file);
    if (!dataset)
        throw BadLayer("MESS_SCENE_BAD_FOOTPRINTS", {file, CPLGetLastErrorMsg()});
    return dataset;
}

OGRLayer &findLayer(GDALDataset &dataset, const std::string &name)
{
    OGRLayer *found = nullptr;
    for (int i = 0; i < dataset.GetLayerCount(); ++i) {
        OGRLayer *layer = dataset.GetLayer(i);
        if (layer && (name.empty() || name == layer->GetName()))
            return *layer;
        if (layer && !found && EQUAL(name.c_str(), layer->GetName()))
            found = layer;
    }
    if (!found)
        throw BadLayer("MESS_SCENE_NO_LAYER", {name});
    return *found;
}

int findHeightField(const OGRLayer &layer, const std::string &name)
{
    const OGRFeatureDefn &definition = *const_cast<OGRLayer &>(layer).GetLayerDefn();
    int found = -1;
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        const char *known = definition.GetFieldDefn(i)->GetNameRef();
        if (name == known || (found < 0 && EQUAL(known, name.c_str())))
            found = i;
        if (name == known)
            break;
    }
    if (found < 0)
        throw BadLayer("MESS_SCENE_NO_FIELD", {name});
    const OGRFieldType type = definition.GetFieldDefn(found)->GetType();
    if (type != OFTInteger && type != OFTInteger64 && type != OFTReal && type != OFTString)
        throw BadLayer("MESS_SCENE_NO_NUMBERS", {name});
    return found;
}

/// Adds a feature if it is a building, else counts it as left out.
void take(const OGRFeature &feature, int heightField, FootprintBuilder &builder, LeftOut &leftOut)
{
    const std::optional<double> heightM = numberAt(feature, heightField, -Endless, Endless);
    if (!heightM || std::abs(*heightM) > MaxBuildingHeightM) {
        ++leftOut.noHeight;
        return;
    }
    const auto height = static_cast<float>(*heightM);
    if (!(height > 0)) {
        ++leftOut.notPositive;
        return;
    }
    const OGRGeometry *shape = feature.GetGeometryRef();
    OGRGeometryUniquePtr straight;
    if (shape && shape->hasCurveGeometry(FALSE)) {
        straight.reset(shape->getLinearGeometry());
        shape = straight.get();
    }
    if (!shape || !builder.add(*shape, height))
        ++leftOut.noShape;
}

/// The next feature; null after the last one, and if the rest cannot be read, which adds a notice.
OGRFeatureUniquePtr nextReadable(OGRLayer &layer, std::size_t features, Notices &notices)
{
    try {
        return nextFeature(layer);
    } catch (const BadLayer &fault) {
        if (features == 0)
            throw;
        notices.push_back(contract::formatted("MESS_SCENE_READ_PARTLY",
                                              {std::to_string(features), fault.what()}));
    }
    return nullptr;
}

void readFeatures(OGRLayer &layer, int heightField, ReadFootprints &read, Notices &notices,
                  const Progress &progress)
{
    const auto expected = static_cast<double>(std::max<GIntBig>(layer.GetFeatureCount(FALSE), 1));
    FootprintBuilder builder(read.footprints);
    while (const OGRFeatureUniquePtr feature = nextReadable(layer, read.features, notices)) {
        if (read.footprints.positions.size() > MaxPositions) {
            notices.push_back(
                contract::formatted("MESS_SCENE_SHOWN_PARTLY", {std::to_string(read.features)}));
            return;
        }
        take(*feature, heightField, builder, read.leftOut);
        if (++read.features % FeaturesPerReport == 0 &&
            !progress(std::min(static_cast<double>(read.features) / expected, 1.0)))
            throw Stopped{};
    }
}

} // namespace

ReadFootprints readFootprints(const FootprintSource &source, Notices &notices,
                              const Progress &progress)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset = openFootprints(source.file);
    OGRLayer &layer = findLayer(*dataset, source.layer);
    const int heightField = findHeightField(layer, source.heightField);
    readOnlyFields(layer, {heightField});
    ReadFootprints read;
    if (const OGRSpatialReference *srs = layer.GetSpatialRef(); srs && !srs->IsEmpty()) {
        read.srs = *srs;
        read.srs->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    }
    readFeatures(layer, heightField, read, notices, progress);
    return read;
}

} // namespace vlt::scene
