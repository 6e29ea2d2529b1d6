#pragma once

#include "geodata/LinkCheck.h"

#include <QJsonObject>

namespace vlt::batch {

/// For people: a line for each link and how many have which verdict, in the chosen language.
QString linkReportText(const geodata::LinkCheck &check);

/// For programs: the same as "links" and "verdicts".
QJsonObject linkReportJson(const geodata::LinkCheck &check);

} // namespace vlt::batch
