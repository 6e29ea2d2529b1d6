#pragma once

#include "geodata/SrsFacts.h"

#include <QtGlobal>

#include <memory>
#include <vector>

class OGRCoordinateTransformation;
class OGRGeometry;
class OGRSpatialReference;

namespace vlt::geodata {

/// The systems by which a table is placed, as texts; each may be empty.
struct SystemPair
{
    QString source; ///< of the table
    QString target; ///< of the project
};

/// How a table's positions lie to the areas of its systems. A system without an area has no
/// position outside.
struct SystemCheck
{
    SrsFacts source;
    SrsFacts target;
    qint64 positions = 0; ///< those that were compared
    qint64 outsideSource = 0;
    qint64 outsideTarget = 0;
    std::optional<SrsBounds> extent; ///< of the positions, degrees of WGS 84; not beyond ±180
};

/// Compares positions with the areas of use. A position half a degree beyond an area still counts
/// as inside it: networks do not end where a zone does.
class SystemChecker
{
public:
    /// @param placed  system of the positions; null: that of systems.source
    SystemChecker(const SystemPair &systems, const OGRSpatialReference *placed);
    ~SystemChecker();
    SystemChecker(const SystemChecker &) = delete;
    SystemChecker &operator=(const SystemChecker &) = delete;

    /// A point is one position, a line two: its ends. Any other geometry is passed over.
    void add(const OGRGeometry &geometry);

    /// The outcome for all that was added.
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
    std::vector<double> m_x; ///< of the positions that are not compared yet
    std::vector<double> m_y;
};

} // namespace vlt::geodata
