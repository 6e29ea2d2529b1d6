#include "plugins/tables/doctor/FindingTexts.h"

#include "contract/TableTexts.h"

namespace vlt::driver {

using contract::formatted;

std::string rowsText(const Finding &finding)
{
    std::string text;
    for (const int64_t row : finding.rows)
        text += (text.empty() ? "" : ", ") + std::to_string(row);
    return finding.count > finding.rows.size() ? text + " ..." : text;
}

std::string coordinatesText(const Correction &correction, bool isGeographic)
{
    const bool x = correction.factorX != 1;
    if (x && correction.factorY != 1)
        return formatted("MESS_TAB_DOCTOR_COORDINATES");
    if (isGeographic)
        return x ? formatted("MESS_TAB_DOCTOR_LONGITUDES") : formatted("MESS_TAB_DOCTOR_LATITUDES");
    return x ? formatted("MESS_TAB_DOCTOR_EASTINGS") : formatted("MESS_TAB_DOCTOR_NORTHINGS");
}

} // namespace vlt::driver
