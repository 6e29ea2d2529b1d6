#pragma once

#include "plugins/tables/doctor/CoordinateDoctor.h"
#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/TableDeclaration.h"

#include <ogr_spatialref.h>

#include <memory>
#include <string>

namespace vlt::driver {

/// The systems and the area that the caller states; empty members are not given.
struct StatedSystems
{
    std::string source; ///< of the table
    std::string target; ///< of the result
    /// Area of the project's terrain: west, south, east and north in degrees, separated by commas
    /// or blanks.
    std::string extent;
};

/// The coordinate system of a table, that of the result, and the transformation between them.
class TableSystems
{
public:
    /// Throws RefusedFile (BadOption).
    TableSystems(const TableDeclaration &table, const StatedSystems &stated);

    /// System of the file; null if it is not known.
    const OGRSpatialReference *file() const { return m_file.get(); }
    /// System of the resulting positions; null if it is not known.
    OGRSpatialReference *target() const { return m_target ? m_target.get() : m_file.get(); }
    /// 180 degrees in the unit of the file's system if that is geographic; else 0.
    double halfTurn() const;
    /// Whether a target system is given, but the system of the file is not known.
    bool isUnreachable() const { return m_isUnreachable; }
    /// What is known about the system in which the positions stand.
    SystemFacts facts() const;
    /// The code that the file declares; empty if the library does not know it.
    const std::string &knownEpsg() const { return m_knownEpsg; }

    /// Transforms a position from the file's system to the target system. If that is not possible,
    /// the row has no position and gets a problem.
    void transform(int64_t row, Position &position, std::vector<RowProblem> &problems) const;
    /// Adds the problems with the systems.
    void addProblems(ProblemList &problems) const;

private:
    struct Release
    {
        void operator()(OGRSpatialReference *srs) const { srs->Release(); }
    };
    using Srs = std::unique_ptr<OGRSpatialReference, Release>;

    static Srs make(const std::string &text);
    std::optional<CoordinateBox> inFile(const CoordinateBox &degrees) const;

    Srs m_file;
    Srs m_target;
    std::unique_ptr<OGRCoordinateTransformation> m_transformation;
    std::string m_knownEpsg;
    std::string m_unknownEpsg; ///< code in the file that the library does not know
    bool m_isUnreachable = false;
    std::optional<CoordinateBox> m_extent; ///< of the terrain, degrees
};

} // namespace vlt::driver
