#pragma once

#include "plugins/tables/sites/SiteRoles.h"
#include "plugins/tables/table/RowProblem.h"
#include "plugins/tables/values/TransmitterValues.h"

#include <optional>
#include <string>
#include <vector>

namespace vlt::driver {

/// The values of one transmitter; nothing where the table says nothing.
struct TransmitterValues
{
    std::string sectorId;
    std::string technology;
    std::optional<double> heightM;
    std::optional<double> azimuthDeg; ///< none also for all directions
    std::optional<double> mechanicalTiltDeg;
    std::optional<double> electricalTiltDeg;
    std::optional<double> beamWidthDeg;
    std::optional<double> frequencyMHz;

    bool operator==(const TransmitterValues &) const = default;
};

/// Whether there is at least one transmitter.
bool hasTransmitters(const std::vector<std::optional<TransmitterValues>> &transmitters);

/// Reads the transmitters of a row and reports the values that cannot be used. A transmitter with
/// such a height or azimuth is left out, so that nothing is drawn in its stead.
class TransmitterReader
{
public:
    TransmitterReader(const TableProfile &table, const SiteRoles &roles,
                      const Vocabulary &vocabulary);

    /// One entry for each transmitter that the row has columns for, or for each item of its lists;
    /// empty for one that is left out or has no values.
    std::vector<std::optional<TransmitterValues>> read(int64_t row,
                                                       const std::vector<const Cell *> &cells,
                                                       std::vector<RowProblem> &problems) const;

private:
    class RowContext;

    const TableProfile *m_table;
    const SiteRoles *m_roles;
    const Vocabulary *m_vocabulary;
    ValueWords m_words;
};

} // namespace vlt::driver
