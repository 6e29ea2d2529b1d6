#include "buildings/FieldColors.h"

#include "city/FieldValues.h"
#include "colormaps/DistinctColors.h"
#include "contract/BadLayer.h"
#include "contract/Stopped.h"
#include "language/ReaderText.h"
#include "language/VltLanguageManager.h"

#include <algorithm>
#include <cmath>

namespace vlt::buildings {

namespace {

Stoppable<city::FieldValues> read(const RasterColoring &coloring,
                                  const contract::BuildingDocument &document,
                                  const Progress &progress)
{
    try {
        return Result(city::readFieldValues(
            document.footprints.file, document.footprints, coloring.field.toStdString(),
            coloring.isText ? city::FieldKind::Texts : city::FieldKind::Numbers,
            [&progress](double share) { return !progress || progress(share); }));
    } catch (const contract::BadLayer &fault) {
        return Error::asIs(language::readerText(QString::fromStdString(fault.what())),
                           QString::fromStdString(document.footprints.file));
    } catch (const contract::Stopped &) {
        return std::nullopt;
    }
}

Error hasNoValues(const RasterColoring &coloring, const contract::BuildingDocument &document)
{
    return Error::asIs(
        dico_label("MESS_FIELD_NO_VALUES", "the field \"%1\" has no values").arg(coloring.field),
        QString::fromStdString(document.footprints.file));
}

/// The least number that at least a share of all does not exceed.
double percentile(std::vector<double> &numbers, double percent)
{
    const auto count = static_cast<double>(numbers.size());
    const double rank = std::clamp(std::ceil(percent / 100 * count), 1.0, count);
    const auto at = numbers.begin() + static_cast<std::ptrdiff_t>(rank) - 1;
    std::nth_element(numbers.begin(), at, numbers.end());
    return *at;
}

} // namespace

QList<geodata::VectorField> colorFields(const QList<geodata::VectorField> &fields)
{
    QList<geodata::VectorField> usable = fields;
    usable.removeIf([](const auto &field) { return field.kind == geodata::FieldKind::Other; });
    return usable;
}

Stoppable<RasterRange> rangeOfField(const RasterColoring &coloring,
                                    const contract::BuildingDocument &document,
                                    const Progress &progress)
{
    const Stretch &stretch = coloring.stretch;
    if (stretch.kind == Stretch::Range)
        return Result(RasterRange{coverage::ValueRange{stretch.low, stretch.high}, {}});
    const Stoppable<city::FieldValues> values = read(coloring, document, progress);
    if (!values)
        return std::nullopt;
    if (!*values)
        return values->error();
    std::vector<double> numbers = values->value().numbers;
    std::erase_if(numbers, [](double number) { return std::isnan(number); });
    if (numbers.empty())
        return Result<RasterRange>(hasNoValues(coloring, document));
    const bool isPart = stretch.kind == Stretch::Percentile;
    const double low = percentile(numbers, isPart ? stretch.low : 0);
    const double high = percentile(numbers, isPart ? stretch.high : 100);
    return Result(RasterRange{coverage::ValueRange{low, high}, {}});
}

Stoppable<LegendInput> legendOfTexts(const RasterColoring &coloring,
                                     const contract::BuildingDocument &document,
                                     const Progress &progress)
{
    const Stoppable<city::FieldValues> values = read(coloring, document, progress);
    if (!values)
        return std::nullopt;
    if (!*values)
        return values->error();
    const std::vector<city::FieldText> &texts = values->value().distinct;
    if (texts.empty())
        return Result<LegendInput>(hasNoValues(coloring, document));
    LegendInput legend;
    legend.name = coloring.field;
    for (std::size_t i = 0; i < std::min(texts.size(), colormaps::DistinctColorCount); ++i)
        legend.kinds.append(
            {QString::fromStdString(texts[i].text).simplified(), colormaps::distinctColor(i)});
    if (texts.size() > colormaps::DistinctColorCount)
        legend.kinds.append({dico_label("MESS_FIELD_OTHERS", "others"),
                             colormaps::distinctColor(colormaps::DistinctColorCount)});
    return Result(legend);
}

} // namespace vlt::buildings
