#pragma once

#include "batch/NumberOptions.h"
#include "contract/BuildingDocument.h"

#include <QStringList>

#include <cstddef>
#include <vector>

namespace vlt::batch {

/// The numbers of a layer of buildings, with their first-run values.
struct BuildingsMeasures
{
    int distanceM = contract::ExtrudedVisibilityM.firstRun; ///< maximum for buildings
    double tileSizeM = contract::TileSizeM.firstRun;
    double skirtM = contract::SkirtHeightM.firstRun;
    int texturedDistanceM = contract::TexturedVisibilityM.firstRun; ///< maximum for images
    int cacheCapacity = contract::CacheCapacity.firstRun;           ///< elements
    double bufferM = contract::TextureBufferM.firstRun;
    int dilatationPixels = contract::TextureDilatationPixels.firstRun;
};

const std::vector<NumberOption<BuildingsMeasures>> &buildingsNumbers();

/// The value of a colour option for colours from the raster.
inline constexpr char StretchWords[] = "raster|percentile=2-98|buildings|range=MIN,MAX|with=FILE";

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

/// Words as the name of an option's value: "one|two".
template<std::size_t N>
QString choiceOf(const char *const (&words)[N])
{
    return wordsOf(words).join(QLatin1Char('|'));
}

/// Index of an option's value among the words; 0 if the option is not given.
Result<int> readWord(const QCommandLineParser &parser, const QString &option,
                     const QStringList &words);

/// The words of the document in the order of contract::Reduction, "most-represented" with a hyphen.
QStringList reductionWords();

/// The options of a layer of buildings.
QList<QCommandLineOption> buildingsOptions();

} // namespace vlt::batch
