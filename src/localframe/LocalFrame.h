#pragma once

#include "contract/Place.h"

#include <ogr_spatialref.h>

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace vlt::localframe {

using contract::Place;

/// A local frame in metres whose origin is the centre of some positions, x east, y north.
///
/// Positions in a projected system are shifted and converted from its unit to metres. Those in a
/// geographic system, and in a projected one whose lengths at the centre are wrong by more than
/// 0.5 %, are projected with an azimuthal equidistant projection about the centre, on the system's
/// ellipsoid: distances and directions from the centre are exact, lengths across these directions
/// have errors below 1e-4 up to 150 km from it. Without a system, the unit is metres.
class LocalFrame
{
public:
    /// @param srs        system of the positions, x before y; may be null
    /// @param positions  a few that are far from all others do not determine the centre
    /// @throws BadLayer  the system is neither projected nor geographic
    LocalFrame(const OGRSpatialReference *srs, const std::vector<Place> &positions);

    /// Centre of the rectangle around the positions that are not far from all others, in `srs`.
    const Place &centre() const { return m_centre; }

    /// Transforms a position from `srs` to the frame; NaN if it cannot be projected.
    Place toFrame(Place position) const;
    void toFrame(std::span<Place> positions) const;

    /// Transforms a position from the frame to `srs`.
    Place fromFrame(Place position) const;

private:
    void projectAround(const OGRSpatialReference &srs, const Place &centreDeg);

    Place m_centre;
    double m_unitM = 1; ///< of a projected system; negative for axes to the west and south
    std::unique_ptr<OGRCoordinateTransformation> m_toPlane; ///< null: positions are only shifted
    std::unique_ptr<OGRCoordinateTransformation> m_fromPlane;
};

/// Transforms positions from a system, x before y, to a frame around them. The x of a position that
/// is not on the earth becomes NaN.
///
/// @param srs  null: unknown
/// @throws BadLayer  the system is neither projected nor geographic
std::shared_ptr<const LocalFrame> moveToFrame(const OGRSpatialReference *srs,
                                              std::vector<Place> &positions);

/// The text of a coordinate system, which the library reads again; empty for null.
std::string wktOf(const OGRSpatialReference *srs);

} // namespace vlt::localframe
