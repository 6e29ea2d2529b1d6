#include "localframe/LocalFrame.h"

#include "contract/BadLayer.h"
#include "localframe/NearOnes.h"

#include <cpl_conv.h>
#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>
#include <utility>

namespace vlt::localframe {

using contract::BadLayer;

namespace {

constexpr double MaxDistanceM = 3e7; ///< more than half the earth's circumference
constexpr double DegreesPerRadian = 57.29577951308232;
constexpr double WholeTurnRad = 2 * 3.14159265358979324;
constexpr double EarthRadiusM = 6371000;
constexpr double MaxScaleError = 0.005;
constexpr std::size_t MaxSamples = 100000;
constexpr std::size_t MinForCore = 20; ///< positions; of fewer, one is too large a part
constexpr std::size_t PositionsAtOnce = 1024;

/// Whether the axes of a system point to the west and south, as in South African grids.
bool countsWestAndSouth(const OGRSpatialReference &srs)
{
    OGRAxisOrientation first = OAO_Other;
    OGRAxisOrientation second = OAO_Other;
    srs.GetAxis(nullptr, 0, &first);
    srs.GetAxis(nullptr, 1, &second);
    return (first == OAO_West && second == OAO_South) || (first == OAO_South && second == OAO_West);
}

/// Approximate length in metres of a unit of coordinates.
double unitOf(const OGRSpatialReference *srs)
{
    if (!srs)
        return 1;
    return srs->IsGeographic() ? srs->GetAngularUnits() * EarthRadiusM : srs->GetLinearUnits();
}

/// The interval of coordinates that determine the centre of a frame. A few that are far from all
/// others, perhaps mistyped ones, do not: a frame that included them would be too far from the
/// others.
///
/// @param values  at least one
Interval coreOf(std::vector<double> values, double unitM)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    const double reach = MaxDistanceM / unitM;
    const Interval onEarth{*middle - reach, *middle + reach};
    if (values.size() < MinForCore)
        return onEarth;
    const Interval near = nearOnes(std::move(values), unitM);
    return {std::max(near.minimum, onEarth.minimum), std::min(near.maximum, onEarth.maximum)};
}

/// The coordinates of at most MaxSamples positions.
struct Samples
{
    explicit Samples(const std::vector<Place> &positions)
    {
        for (std::size_t i = 0; i < positions.size(); i += positions.size() / MaxSamples + 1) {
            if (!std::isfinite(positions[i].x) || !std::isfinite(positions[i].y))
                continue;
            x.push_back(positions[i].x);
            y.push_back(positions[i].y);
        }
    }

    std::vector<double> x;
    std::vector<double> y;
};

/// The centre of the rectangle around the positions that determine it.
///
/// @param wholeTurn  360 degrees in the unit of the positions; 0: they are not geographic. If the
///                   positions are on both sides of the date line, western longitudes are increased
///                   by it first.
Place centreOf(const std::vector<Place> &positions, double unitM, double wholeTurn)
{
    Samples samples(positions);
    if (samples.x.empty())
        return {};
    const auto [west, east] = std::minmax_element(samples.x.begin(), samples.x.end());
    const double shift = *east - *west > wholeTurn / 2 ? wholeTurn : 0;
    for (double &x : samples.x)
        x += x < 0 ? shift : 0;
    const Interval coreX = coreOf(std::move(samples.x), unitM);
    const Interval coreY = coreOf(std::move(samples.y), unitM);
    Place least{HUGE_VAL, HUGE_VAL};
    Place most{-HUGE_VAL, -HUGE_VAL};
    for (const Place &position : positions) {
        const double x = position.x + (position.x < 0 ? shift : 0);
        if (!coreX.contains(x) || !coreY.contains(position.y))
            continue;
        least = {std::min(least.x, x), std::min(least.y, position.y)};
        most = {std::max(most.x, x), std::max(most.y, position.y)};
    }
    const double x = (least.x + most.x) / 2;
    return {wholeTurn > 0 && x > wholeTurn / 2 ? x - wholeTurn : x, (least.y + most.y) / 2};
}

Place centreOf(const OGRSpatialReference *srs, const std::vector<Place> &positions)
{
    const double wholeTurn = srs && srs->IsGeographic() ? WholeTurnRad / srs->GetAngularUnits() : 0;
    return centreOf(positions, unitOf(srs), wholeTurn);
}

/// Transforms positions; those without a result become NaN.
void transform(OGRCoordinateTransformation &transformation, std::span<Place> positions)
{
    double x[PositionsAtOnce];
    double y[PositionsAtOnce];
    int succeeded[PositionsAtOnce];
    for (std::size_t done = 0; done < positions.size(); done += PositionsAtOnce) {
        const auto some =
            positions.subspan(done, std::min(PositionsAtOnce, positions.size() - done));
        for (std::size_t i = 0; i < some.size(); ++i) {
            x[i] = some[i].x;
            y[i] = some[i].y;
        }
        transformation.Transform(static_cast<int>(some.size()), x, y, nullptr, succeeded);
        for (std::size_t i = 0; i < some.size(); ++i)
            some[i] = succeeded[i] ? Place{x[i], y[i]} : Place{NAN, NAN};
    }
}

OGRSpatialReference xBeforeY(const OGRSpatialReference &srs)
{
    OGRSpatialReference ordered(srs);
    ordered.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return ordered;
}

OGRSpatialReference geographicOf(const OGRSpatialReference &srs)
{
    OGRSpatialReference geographic;
    geographic.CopyGeogCSFrom(&srs);
    geographic.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return geographic;
}

/// The place of a position of a projected system in degrees, and whether lengths around it are
/// wrong by more than MaxScaleError, as they are in a Mercator projection far from the equator.
struct Ground
{
    Place degrees;
    bool isDistorted = false;
};

Ground groundAt(const OGRSpatialReference &srs, const Place &centre)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const OGRSpatialReference from = xBeforeY(srs);
    const OGRSpatialReference geographic = geographicOf(srs);
    const std::unique_ptr<OGRCoordinateTransformation> toDegrees(
        OGRCreateCoordinateTransformation(&from, &geographic));
    if (!toDegrees)
        return {};
    constexpr double stepM = 100;
    const double step = stepM / srs.GetLinearUnits();
    Place at[] = {centre, {centre.x + step, centre.y}, {centre.x, centre.y + step}};
    transform(*toDegrees, at);
    const double unitRad = geographic.GetAngularUnits();
    const double latitude = at[0].y * unitRad;
    const double semiMajorM = geographic.GetSemiMajor();
    const double squaredEccentricity = geographic.GetSquaredEccentricity();
    const double root = 1 - squaredEccentricity * std::pow(std::sin(latitude), 2);
    const double eastM = semiMajorM / std::sqrt(root) * std::cos(latitude) * unitRad;
    const double northM = semiMajorM * (1 - squaredEccentricity) / std::pow(root, 1.5) * unitRad;
    Ground ground{{at[0].x * unitRad * DegreesPerRadian, latitude * DegreesPerRadian}};
    for (const Place &other : {at[1], at[2]}) {
        const double lengthM =
            std::hypot((other.x - at[0].x) * eastM, (other.y - at[0].y) * northM);
        ground.isDistorted = ground.isDistorted || std::abs(lengthM / stepM - 1) > MaxScaleError;
    }
    return ground;
}

} // namespace

LocalFrame::LocalFrame(const OGRSpatialReference *srs, const std::vector<Place> &positions)
    : m_centre(centreOf(srs, positions))
{
    if (srs && srs->IsGeographic()) {
        const double unitDeg = srs->GetAngularUnits() * DegreesPerRadian;
        projectAround(*srs, {m_centre.x * unitDeg, m_centre.y * unitDeg});
        return;
    }
    if (srs && !srs->IsProjected() && !srs->IsLocal())
        throw BadLayer("MESS_SCENE_NO_FRAME");
    m_unitM = srs ? srs->GetLinearUnits() : 1;
    if (srs && countsWestAndSouth(*srs))
        m_unitM = -m_unitM;
    const Ground ground = srs && srs->IsProjected() ? groundAt(*srs, m_centre) : Ground();
    if (ground.isDistorted)
        projectAround(*srs, ground.degrees);
}

void LocalFrame::projectAround(const OGRSpatialReference &srs, const Place &centreDeg)
{
    OGRSpatialReference plane;
    plane.SetProjCS("around the places");
    plane.CopyGeogCSFrom(&srs);
    plane.SetAE(centreDeg.y, centreDeg.x, 0, 0);
    plane.SetLinearUnits(SRS_UL_METER, 1);
    plane.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const OGRSpatialReference from = xBeforeY(srs);
    m_toPlane.reset(OGRCreateCoordinateTransformation(&from, &plane));
    m_fromPlane.reset(OGRCreateCoordinateTransformation(&plane, &from));
    if (!m_toPlane || !m_fromPlane)
        throw BadLayer("MESS_SCENE_NO_PROJECTION");
}

void LocalFrame::toFrame(std::span<Place> positions) const
{
    if (m_toPlane) {
        transform(*m_toPlane, positions);
        return;
    }
    for (Place &position : positions)
        position = {(position.x - m_centre.x) * m_unitM, (position.y - m_centre.y) * m_unitM};
}

Place LocalFrame::toFrame(Place position) const
{
    toFrame(std::span(&position, 1));
    return position;
}

Place LocalFrame::fromFrame(Place position) const
{
    if (!m_fromPlane)
        return {position.x / m_unitM + m_centre.x, position.y / m_unitM + m_centre.y};
    transform(*m_fromPlane, std::span(&position, 1));
    return position;
}

std::shared_ptr<const LocalFrame> moveToFrame(const OGRSpatialReference *srs,
                                              std::vector<Place> &positions)
{
    auto frame = std::make_shared<const LocalFrame>(srs, positions);
    frame->toFrame(positions);
    for (Place &position : positions) {
        if (!(std::hypot(position.x, position.y) <= MaxDistanceM))
            position.x = std::numeric_limits<double>::quiet_NaN();
    }
    return frame;
}

std::string wktOf(const OGRSpatialReference *srs)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const char *const options[] = {"FORMAT=WKT2", nullptr};
    char *text = nullptr;
    std::string wkt;
    if (srs && srs->exportToWkt(&text, options) == OGRERR_NONE)
        wkt = text;
    CPLFree(text);
    return wkt;
}

} // namespace vlt::localframe
