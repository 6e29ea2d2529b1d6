#pragma once

#include "geodata/SrsBounds.h"
#include "srs/SrsEntry.h"

#include <QList>
#include <QStringList>

#include <optional>

namespace vlt::srs {

/// Properties of the data for which a system is chosen.
struct SrsContext
{
    QStringList projectSystems;             ///< codes such as "EPSG:2154" or "2154"
    std::optional<geodata::SrsBounds> area; ///< bounds of the data
};

/// The systems that a search prefers among equally good results: first those in `first`, in their
/// order, then those whose area contains that of the data, then the defaults.
struct SrsPreferences
{
    QList<SrsEntry> first; ///< last used systems and those of the project
    std::optional<geodata::SrsBounds> area;
    QList<SrsEntry> defaults;
};

} // namespace vlt::srs
