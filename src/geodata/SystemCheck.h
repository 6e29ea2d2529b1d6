#pragma once

#include "geodata/SrsFacts.h"

#include <QtGlobal>

#include <memory>
#include <vector>

class OGRCoordinateTransformation;
class OGRGeometry;
class OGRSpatialReference;

namespace vlt::geodata {

/// The coordinate systems of a table and of the project, as texts; each may be empty.
struct SystemPair
{
    QString source; ///< of the table
    QString target; ///< of the project

    bool operator==(const SystemPair &) const = default;
};

/// Number of a table's positions that lie outside the areas of use of its systems. For a system
/// without an area no position is outside.
struct SystemCheck
{
    SrsFacts source;
    SrsFacts target;
    qint64 positions = 0; ///< number of positions compared
    qint64 outsideSource = 0;
    qint64 outsideTarget = 0;
    std::optional<SrsBounds> extent; ///< of the positions, degrees of WGS 84; not beyond ±180
};

/// Compares positions with the areas of use. A position up to half a degree outside an area counts
/// as inside it: networks do not end at the border of a zone.
class SystemChecker
{
public:
    /// @param placed  system of the positions; null for that of systems.source
    SystemChecker(const SystemPair &systems, const OGRSpatialReference *placed);
    ~SystemChecker();
    SystemChecker(const SystemChecker &) = delete;
    SystemChecker &operator=(const SystemChecker &) = delete;

    /// Adds the positions of a geometry: one for a point, both ends for a line. Other geometries
    /// are ignored.
    void add(const OGRGeometry &geometry);

    /// The result for all added positions.
    SystemCheck result();

private:
    struct TransformationRelease
    {
        void operator()(OGRCoordinateTransformation *transformation) const;
    };

    void addPosition(double x, double y);
    void compare();

    SystemCheck m_check;
    std::unique_ptr<OGRCoordinateTransformation, TransformationRelease> m_toDegrees;
    std::vector<double> m_x; ///< of the positions not yet compared
    std::vector<double> m_y;
};

} // namespace vlt::geodata
