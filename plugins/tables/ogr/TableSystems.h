#pragma once

#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/TableDeclaration.h"

#include <ogr_spatialref.h>

#include <memory>
#include <string>

namespace vlt::driver {

/// The coordinate system of a table, that of the result, and the transformation between them.
class TableSystems
{
public:
    /// `sourceSrs` and `targetSrs` are empty if the caller gives none. Throws RefusedFile
    /// (BadOption).
    TableSystems(const TableDeclaration &table, const std::string &sourceSrs,
                 const std::string &targetSrs);

    /// System of the file; null if it is not known.
    const OGRSpatialReference *file() const { return m_file.get(); }
    /// System of the resulting positions; null if it is not known.
    OGRSpatialReference *target() const { return m_target ? m_target.get() : m_file.get(); }
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

    Srs m_file;
    Srs m_target;
    std::unique_ptr<OGRCoordinateTransformation> m_transformation;
    std::string m_knownEpsg;
    std::string m_unknownEpsg; ///< code in the file that the library does not know
    /// A target system is given, but the system of the file is not known.
    bool m_isUnreachable = false;
};

} // namespace vlt::driver
