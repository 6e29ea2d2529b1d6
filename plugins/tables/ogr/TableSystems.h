#pragma once

#include "plugins/tables/ogr/ProblemList.h"
#include "plugins/tables/sites/PositionReader.h"
#include "plugins/tables/sites/TableDeclaration.h"

#include <ogr_spatialref.h>

#include <memory>
#include <string>

namespace vlt::driver {

/// The coordinate systems of a table and of who reads it, and the way from one to the other.
class TableSystems
{
public:
    /// Systems as the caller gave them, empty where he gave none. Throws RefusedFile (BadOption).
    TableSystems(const TableDeclaration &table, const std::string &sourceSrs,
                 const std::string &targetSrs);

    /// System of the file; null where it is not known.
    const OGRSpatialReference *file() const { return m_file.get(); }
    /// System of the positions that are given out; null where it is not known.
    OGRSpatialReference *target() const { return m_target ? m_target.get() : m_file.get(); }
    /// The code that the file declares, empty where nobody knows it.
    const std::string &knownEpsg() const { return m_knownEpsg; }

    /// Takes a position of the file to the target system; one that has no place there gets a
    /// problem.
    void transform(int64_t row, Position &position, std::vector<RowProblem> &problems) const;
    /// What is wrong with the systems.
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
    std::string m_unknownEpsg; ///< the file declares a system that nobody knows
    bool m_isUnreachable =
        false; ///< a target system was asked for, but that of the file is not known
};

} // namespace vlt::driver
