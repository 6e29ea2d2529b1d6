#pragma once

#include "geodata/SrsBounds.h"
#include "srs/SrsEntry.h"

#include <QList>
#include <QStringList>

#include <optional>

namespace vlt::srs {

/// What is known of the data that a system is chosen for.
struct SrsContext
{
    QStringList projectSystems;             ///< codes such as "EPSG:2154" or "2154"
    std::optional<geodata::SrsBounds> area; ///< where the data lie
};

/// Which systems are likelier to be wanted than others that a search finds as well: first those
/// named here, in their order, then those whose area holds that of the data, then the defaults.
struct SrsPreferences
{
    QList<SrsEntry> first; ///< used lately, or the project's
    std::optional<geodata::SrsBounds> area;
    QList<SrsEntry> defaults;
};

} // namespace vlt::srs
