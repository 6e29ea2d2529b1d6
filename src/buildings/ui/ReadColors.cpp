#include "buildings/ui/ReadColors.h"

#include "buildings/ColoringLegend.h"
#include "buildings/FieldColors.h"
#include "buildings/RasterRanges.h"
#include "language/VltLanguageManager.h"
#include "wizard/base/BusyWait.h"
#include "wizard/base/Messages.h"

namespace vlt::buildings {

namespace {

/// The value of work beside the interface; none after a message and if the user stops it.
template<typename T>
std::optional<T> valueOf(QWidget *parent, const QString &text,
                         const std::function<Stoppable<T>(const Progress &)> &work)
{
    const auto read = wizard::waitForValue<Stoppable<T>>(parent, text, work);
    if (!read || !*read)
        return std::nullopt;
    if (const Result<T> &value = **read; value)
        return value.value();
    messages::critical(parent, (*read)->error());
    return std::nullopt;
}

} // namespace

std::optional<ReadColors> readColors(QWidget *parent, const RasterColoring &coloring,
                                     const BuildingLayerInput &layer)
{
    const contract::BuildingDocument document = coloredDocument(layer, coloring);
    if (coloring.isText) {
        const auto legend = valueOf<LegendInput>(
            parent, dico_label("MESS_READING_FIELD", "Reading the values of the field..."),
            [coloring, document](const Progress &progress) {
                return legendOfTexts(coloring, document, progress);
            });
        return legend ? std::optional(ReadColors{coloring, *legend}) : std::nullopt;
    }
    RasterColoring chosen = coloring;
    std::optional<coverage::ValueRange> values;
    if (chosen.stretched) {
        const auto range = valueOf<RasterRange>(
            parent, dico_label("MESS_READING_RANGE", "Computing the minimum and maximum value..."),
            [coloring, document](const Progress &progress) {
                return readRange(coloring, document, progress);
            });
        if (!range)
            return std::nullopt;
        if (needsOwnMap(chosen) && !range->values) {
            messages::critical(parent, Error::asIs(dico_label("MESS_STRETCH_NO_VALUES",
                                                              "None of the pixels has a value"),
                                                   chosen.rasterFile));
            return std::nullopt;
        }
        values = range->values;
        chosen.range = range->known;
    }
    const Result<LegendInput> legend = legendOf(chosen, values);
    if (!legend) {
        messages::critical(parent, legend.error());
        return std::nullopt;
    }
    return ReadColors{chosen, legend.value()};
}

} // namespace vlt::buildings
