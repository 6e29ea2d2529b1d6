#pragma once

#include "linkpath/Clearance.h"

#include <QColor>
#include <QString>

namespace vlt::links {

/// Name of a class of clearance, in the chosen language.
QString clearanceText(linkpath::ClearanceStatus status);

/// The input that is missing for the clearance of a link, in the chosen language; empty for
/// Lack::Nothing.
QString lackText(linkpath::Lack lack);

/// Distance of the worst point from end A and the free height there, in the chosen language, with
/// its numbers.
QString worstText(const linkpath::WorstPoint &worst);

/// The colour of a class of clearance.
QColor colorOfClearance(linkpath::ClearanceStatus status);

} // namespace vlt::links
