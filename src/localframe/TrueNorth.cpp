#include "localframe/TrueNorth.h"

#include <cmath>
#include <numbers>

namespace vlt::localframe {

namespace {

/// Moves positions to the north along their meridians.
class NorthwardStep
{
public:
    explicit NorthwardStep(const OGRSpatialReference &srs)
    {
        OGRSpatialReference system(srs);
        const std::unique_ptr<OGRSpatialReference> degrees(system.CloneGeogCS());
        if (!degrees)
            return;
        for (OGRSpatialReference *end : {&system, degrees.get()})
            end->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
        m_step = StepRad / degrees->GetAngularUnits();
        m_pole = std::numbers::pi / 2 / degrees->GetAngularUnits();
        m_toDegrees.reset(OGRCreateCoordinateTransformation(&system, degrees.get()));
        m_fromDegrees.reset(OGRCreateCoordinateTransformation(degrees.get(), &system));
    }

    /// A position further north; NaN where there is none.
    Place from(Place position) const
    {
        if (!m_toDegrees || !m_fromDegrees || !m_toDegrees->Transform(1, &position.x, &position.y))
            return {NAN, NAN};
        position.y += m_step;
        if (position.y > m_pole || !m_fromDegrees->Transform(1, &position.x, &position.y))
            return {NAN, NAN};
        return position;
    }

private:
    /// About 60 m: long against the rounding of coordinates, short against their curvature.
    static constexpr double StepRad = 1e-5;

    double m_step = 0; ///< in the unit of the geographic system, like the latitude of the pole
    double m_pole = 0;
    std::unique_ptr<OGRCoordinateTransformation> m_toDegrees;
    std::unique_ptr<OGRCoordinateTransformation> m_fromDegrees;
};

} // namespace

std::vector<double> northDirectionsDeg(const LocalFrame &frame, const OGRSpatialReference *srs,
                                       const std::vector<Place> &positions)
{
    std::vector<double> directions(positions.size(), 0.0);
    if (!srs || srs->IsLocal())
        return directions;
    const NorthwardStep step(*srs);
    for (std::size_t i = 0; i < positions.size(); ++i) {
        const Place north = frame.toFrame(step.from(frame.fromFrame(positions[i])));
        const double direction = std::atan2(north.x - positions[i].x, north.y - positions[i].y);
        if (std::isfinite(direction))
            directions[i] = direction * 180 / std::numbers::pi;
    }
    return directions;
}

} // namespace vlt::localframe
