#pragma once

#include "geodata/LayerProblems.h"
#include "sites/SiteFileInfo.h"

namespace vlt::batch {

/// What "vltlayers info" tells of a table.
struct InfoReport
{
    sites::SiteFileInfo file;
    geodata::LayerProblems problems;
};

/// One problem in one line, row and column first.
QString problemText(const Problem &problem);

/// For people: labelled lines in the chosen language.
QString reportText(const InfoReport &report);

/// For programs: one JSON object, with a line feed at its end.
QString reportJson(const InfoReport &report);

} // namespace vlt::batch
