#pragma once

#include "geodata/LinkCheck.h"

#include <QJsonObject>

namespace vlt::batch {

/// The report as text in the chosen language: a line for each link, and the number of links in each
/// class of clearance.
QString linkReportText(const geodata::LinkCheck &check);

/// The same in JSON, as "links" and "statusCounts".
QJsonObject linkReportJson(const geodata::LinkCheck &check);

} // namespace vlt::batch
