#pragma once

#include "batch/NumberOptions.h"

#include <QStringList>

#include <cstddef>
#include <vector>

namespace vlt::batch {

/// The numbers of a layer of buildings, in metres but for the capacity, with their first-run
/// values.
struct BuildingsMeasures
{
    int distance = 2000; ///< up to which buildings are shown
    double tileSize = 250;
    double skirt = 5;
    int texturedDistance = 2000; ///< up to which images are shown
    int cacheCapacity = 100;     ///< elements
    double buffer = 1;
    int dilatation = 1; ///< pixels
};

const std::vector<NumberOption<BuildingsMeasures>> &buildingsNumbers();

/// Colours of a first run.
inline constexpr char WallColor[] = "#d9d4c7";
inline constexpr char RoofColor[] = "#b5634c";
inline constexpr char EdgeColor[] = "#404040";

/// What stands for a colour that comes from the raster.
inline constexpr char ColorMapWord[] = "colormap";

/// Words of the command line, in the order of buildings::DataStructure.
inline constexpr const char *StructureWords[] = {"same-folder", "sibling-folders", "two-levels"};

template<std::size_t N>
QStringList wordsOf(const char *const (&words)[N])
{
    QStringList list;
    for (const char *word : words)
        list << QLatin1String(word);
    return list;
}

/// The words of the document in the order of contract::Reduction, "most-represented" with a hyphen.
QStringList reductionWords();

/// The options of a layer of buildings.
QList<QCommandLineOption> buildingsOptions();

} // namespace vlt::batch
