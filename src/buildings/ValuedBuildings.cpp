#include "buildings/ValuedBuildings.h"

#include "city/BuildingRows.h"
#include "city/FieldValues.h"
#include "city/SeaLevelGuess.h"
#include "colormaps/DistinctColors.h"
#include "contract/BadLayer.h"
#include "contract/Stopped.h"
#include "geodata/ValuesFile.h"
#include "language/ReaderText.h"

#include <QSet>

#include <charconv>
#include <cmath>

namespace vlt::buildings {

namespace {

using geodata::ValueCell;
using geodata::ValueColumn;
using Type = ValueColumn::Type;

constexpr const char *HeightSourceWords[] = {"field", "elseField", "default"};

/// A number without the digits that its conversion from single precision added.
double withoutNoise(double value)
{
    const auto single = static_cast<float>(value);
    if (static_cast<double>(single) != value || !std::isfinite(value))
        return value;
    char text[64];
    const auto end = std::to_chars(std::begin(text), std::end(text), single).ptr;
    std::from_chars(text, end, value);
    return value;
}

/// A share in steps of a millionth.
double shareOf(std::uint64_t pixels, std::uint64_t all)
{
    return std::round(1e6 * static_cast<double>(pixels) / static_cast<double>(all)) / 1e6;
}

/// "#rrggbb", "#rrggbbaa" for colours that are not opaque.
std::string colorText(const colormaps::Rgba &color)
{
    QString text = QStringLiteral("#");
    for (const std::uint8_t part : {color.red, color.green, color.blue, color.alpha})
        text += QStringLiteral("%1").arg(part, 2, 16, QLatin1Char('0'));
    return (color.alpha == 255 ? text.chopped(2) : text).toStdString();
}

ValueCell textCell(const std::string &text)
{
    return text.empty() ? ValueCell() : ValueCell(text);
}

using Color = std::optional<colormaps::Rgba>;

/// The colours that a field gives the features of a document.
class FieldOfColors
{
public:
    /// @param legend  of the colouring
    FieldOfColors(const contract::BuildingDocument &document,
                  const std::optional<LegendInput> &legend, const Progress &progress)
        : m_legend(legend)
    {
        if (!document.colors.field.empty())
            m_values = city::readColorField(document, {"/"}, progress);
    }

    /// Nothing for features without a value, and if no field colours the buildings.
    Color at(std::size_t feature) const
    {
        if (feature < m_values.texts.size() && m_values.hasValue(feature))
            return colormaps::distinctColor(m_values.texts[feature]);
        if (feature < m_values.numbers.size() && m_legend)
            return colorOf(m_legend->map, m_values.numbers[feature], m_legend->interpretation);
        return {};
    }

private:
    const std::optional<LegendInput> &m_legend;
    city::FieldValues m_values;
};

/// The columns of a list and the cells in them.
class RowFormat
{
public:
    RowFormat(const city::CityValues &read, const std::optional<LegendInput> &legend,
              const FieldOfColors &field)
        : m_read(read)
        , m_legend(legend)
        , m_field(field)
    {}

    QList<ValueColumn> columns() const
    {
        QList<ValueColumn> columns{
            {QStringLiteral("fid"), Type::Whole},       {QStringLiteral("id"), Type::Text},
            {QStringLiteral("height_m"), Type::Number}, {QStringLiteral("height_from"), Type::Text},
            {QStringLiteral("base_m"), Type::Number},   {QStringLiteral("bottom_m"), Type::Number},
            {QStringLiteral("value"), Type::Number},    {QStringLiteral("pixels"), Type::Whole}};
        QSet<QString> names;
        for (const city::RasterClass &one : m_read.classes) {
            QString name = QStringLiteral("share_") + QString::fromStdString(one.name);
            if (names.contains(name.toLower()))
                name += QStringLiteral("_%1").arg(one.value);
            names.insert(name.toLower());
            columns << ValueColumn{name, Type::Number};
        }
        return columns << ValueColumn{QStringLiteral("color"), Type::Text}
                       << ValueColumn{QStringLiteral("left_out"), Type::Text};
    }

    std::vector<ValueCell> cells(const city::BuildingRow &row) const
    {
        std::vector<ValueCell> cells{row.fid, textCell(row.id)};
        if (row.leftOut) {
            cells.resize(static_cast<std::size_t>(columns().size()));
            cells.back() = std::string(keyOf(*row.leftOut));
            return cells;
        }
        cells.insert(cells.end(), {withoutNoise(row.heightM),
                                   std::string(HeightSourceWords[static_cast<int>(row.source)]),
                                   withoutNoise(row.baseM), withoutNoise(row.bottomM)});
        addValue(cells, row.value);
        const Color color = row.value ? colorOfValue(*row.value) : m_field.at(row.index);
        cells.push_back(color ? ValueCell(colorText(*color)) : ValueCell());
        cells.emplace_back();
        return cells;
    }

private:
    void addValue(std::vector<ValueCell> &cells, const city::FeatureValue *found) const
    {
        const bool hasValue = found && found->value;
        cells.push_back(hasValue ? ValueCell(withoutNoise(*found->value)) : ValueCell());
        cells.push_back(found ? ValueCell(static_cast<std::int64_t>(found->pixels)) : ValueCell());
        for (const city::RasterClass &one : m_read.classes)
            cells.push_back(hasValue ? ValueCell(shareOf(pixelsOf(*found, one), found->pixels))
                                     : ValueCell());
    }

    Color colorOfValue(const city::FeatureValue &found) const
    {
        return m_legend ? colorOf(m_legend->map, found.value.value_or(std::nan("")),
                                  m_legend->interpretation)
                        : Color();
    }

    std::uint64_t pixelsOf(const city::FeatureValue &found, const city::RasterClass &one) const
    {
        for (const coverage::ValueCount &count : m_read.countsOf(found)) {
            if (count.value == one.value)
                return count.pixels;
        }
        return 0;
    }

    const city::CityValues &m_read;
    const std::optional<LegendInput> &m_legend;
    const FieldOfColors &m_field;
};

Error readerError(const contract::BadLayer &fault, const contract::BuildingDocument &document)
{
    return Error::asIs(language::readerText(QString::fromStdString(fault.what())),
                       QString::fromStdString(document.footprints.file));
}

/// The progress of work that always reports.
Progress reporting(const Progress &progress)
{
    return progress ? progress : [](double) { return true; };
}

} // namespace

ValuedBuildings::ValuedBuildings(const contract::BuildingDocument &document,
                                 std::shared_ptr<const city::CityValues> read)
    : m_document(document)
    , m_read(std::move(read))
{}

Stoppable<ValuedBuildings> ValuedBuildings::read(const contract::BuildingDocument &document,
                                                 const Progress &progress)
{
    try {
        return Result(ValuedBuildings(
            document, std::make_shared<const city::CityValues>(city::readCityValues(
                          document, {"/"}, city::ClassCounts::Wanted, reporting(progress)))));
    } catch (const contract::BadLayer &fault) {
        return Result<ValuedBuildings>(readerError(fault, document));
    } catch (const contract::Stopped &) {
        return std::nullopt;
    }
}

CountedBuildings ValuedBuildings::counted() const
{
    CountedBuildings counted;
    counted.counts = m_read->city.counts;
    counted.isProbablyAboveSea = city::areProbablyAboveSea(m_read->city);
    counted.unit = QString::fromStdString(m_read->unit);
    for (const std::string &notice : m_read->notices)
        counted.notices << language::readerText(QString::fromStdString(notice));
    for (const city::FeatureValue &one : m_read->values) {
        if (one.value)
            counted.values.push_back(*one.value);
    }
    return counted;
}

Stoppable<Done> ValuedBuildings::write(const ValuesTarget &target,
                                       const std::optional<LegendInput> &legend,
                                       const Progress &progress) const
{
    const Progress report = reporting(progress);
    const double fieldShare = m_document.colors.field.empty() ? 0 : 0.3; // of the work
    Result<Done> written = Done{};
    try {
        const FieldOfColors field(m_document, legend,
                                  [&](double share) { return report(share * fieldShare); });
        const RowFormat format(*m_read, legend, field);
        auto file = geodata::ValuesFile::create(target.path, format.columns(),
                                                city::wktOf(m_read->city.srs));
        if (!file)
            return Result<Done>(file.error());
        city::forEachRow(
            m_document, {"/"}, *m_read, target.idField.toStdString(),
            [&](const city::BuildingRow &row) {
                written = file.value()->add(format.cells(row), row.shape);
                return written.ok();
            },
            [&](double share) { return report(fieldShare + share * (1 - fieldShare)); });
        return written ? file.value()->finish() : written;
    } catch (const contract::BadLayer &fault) {
        return Result<Done>(readerError(fault, m_document));
    } catch (const contract::Stopped &) {
        return std::nullopt;
    }
}

Stoppable<Done> saveValues(const contract::BuildingDocument &document, const ValuesTarget &target,
                           const std::optional<LegendInput> &legend, const Progress &progress)
{
    constexpr double ReadingShare = 0.7; // of the work
    const Progress report = reporting(progress);
    const Stoppable<ValuedBuildings> read =
        ValuedBuildings::read(document, [&](double share) { return report(share * ReadingShare); });
    if (!read)
        return std::nullopt;
    if (!*read)
        return Result<Done>(read->error());
    return read->value().write(target, legend, [&](double share) {
        return report(ReadingShare + share * (1 - ReadingShare));
    });
}

} // namespace vlt::buildings
