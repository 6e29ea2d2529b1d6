#include "buildings/HeightAdvice.h"

#include "buildings/HeightGuess.h"
#include "city/HeightCounts.h"
#include "contract/BadLayer.h"
#include "contract/Stopped.h"
#include "language/Numbers.h"
#include "language/VltLanguageManager.h"

namespace vlt::buildings {

namespace {

using contract::BuildingDocument;

/// A second field and the number of buildings that it gives a height.
struct Filling
{
    QString field;
    std::size_t count = 0;
};

Filling bestFilling(const BuildingDocument &document, const geodata::PolygonLayer &layer,
                    const Progress &progress)
{
    Filling best;
    for (const QString &field : fieldsNamedAsHeights(layer)) {
        contract::BuildingFootprints footprints = document.footprints;
        if (field == QString::fromStdString(footprints.heightField))
            continue;
        footprints.heights.elseField = field.toStdString();
        footprints.heights.elseUnit = unitFromName(field);
        const std::size_t count = city::HeightValues(footprints.file, footprints, progress)
                                      .count(footprints.heights)
                                      .fromElseField;
        if (count > best.count)
            best = {field, count};
    }
    return best;
}

std::optional<HeightAdvice> adviseFilling(const BuildingDocument &document,
                                          const contract::CityCounts &counts,
                                          const geodata::PolygonLayer &layer,
                                          const Progress &progress)
{
    const std::size_t missing = counts.leftOut.missingHeight + counts.leftOut.notPositive +
                                counts.leftOut.tooHigh + counts.substitutes.defaultHeight;
    if (missing == 0 || !document.footprints.heights.elseField.empty())
        return std::nullopt;
    const Filling best = bestFilling(document, layer, progress);
    if (best.count == 0)
        return std::nullopt;
    const auto number = [](std::size_t count) {
        return language::wholeNumber(static_cast<qint64>(count));
    };
    const QString text =
        dico_label("MESS_ADVICE_ELSE", "%1 of %2 buildings have no height in \"%3\"; \"%4\" would "
                                       "give it for %5 of them");
    return HeightAdvice{text.arg(number(missing), number(counts.features),
                                 QString::fromStdString(document.footprints.heightField),
                                 best.field, number(best.count)),
                        best.field};
}

} // namespace

std::optional<HeightAdvice> adviseHeights(const BuildingDocument &document,
                                          const CountedBuildings &counted,
                                          const geodata::PolygonLayer &layer,
                                          const Progress &progress)
{
    try {
        if (auto filling = adviseFilling(document, counted.counts, layer, progress))
            return filling;
    } catch (const contract::BadLayer &) {
        return std::nullopt; // counting has reported it
    } catch (const contract::Stopped &) {
        return std::nullopt;
    }
    if (!counted.isProbablyAboveSea)
        return std::nullopt;
    return HeightAdvice{
        dico_label("MESS_ADVICE_SEA", "The values of \"%1\" are probably heights above sea level")
            .arg(QString::fromStdString(document.footprints.heightField)),
        {}};
}

} // namespace vlt::buildings
