#include "city/CityValues.h"

#include "city/BuildingValues.h"
#include "city/FieldValues.h"
#include "contract/BadLayer.h"
#include "contract/Stopped.h"

#include <algorithm>
#include <set>
#include <sstream>

namespace vlt::city {

namespace {

using contract::RasterColors;
using coverage::CoverageRaster;
using coverage::ValueCount;
using coverage::ValueKind;

constexpr double InputsShare = 0.6; ///< of the work, if there is a raster
constexpr std::size_t BuildingsPerReport = 100;

std::optional<RasterColors> colorsOf(const contract::BuildingDocument &document)
{
    const contract::BuildingFootprints &footprints = document.footprints;
    const auto walls = contract::parseRasterColors(footprints.wallColor, document.colors);
    return walls ? walls : contract::parseRasterColors(footprints.roofColor, document.colors);
}

bool mayBeClasses(const CoverageRaster &raster, const RasterColors &colors)
{
    return raster.valueKind() == ValueKind::Integers &&
           colors.reduction == contract::Reduction::MostRepresented;
}

/// Makes the values of a city.
class Valuer
{
public:
    Valuer(CityValues &read, const RasterColors &colors,
           const std::vector<std::string> &directories, ClassCounts classCounts)
        : m_read(read)
        , m_raster(openRaster(colors, directories))
        , m_transform(wktOf(read.city.srs), m_raster->srs())
        , m_hasClasses(m_raster->valueKind() == ValueKind::Classes)
        , m_withCounts(classCounts == ClassCounts::Wanted &&
                       (m_hasClasses || mayBeClasses(*m_raster, colors)))
        , m_values(read.city.footprints, m_transform, *m_raster, colors.reduction)
    {
        checkTransform(m_transform, colors);
    }

    /// @return  number of features without a value
    std::size_t run(const Progress &progress)
    {
        const Footprints &footprints = m_read.city.footprints;
        m_read.values.resize(footprints.features.size());
        const std::vector<std::size_t> order = featuresInRows(footprints);
        std::size_t without = 0;
        std::size_t done = 0;
        for (const std::size_t first : order) {
            if (done++ % BuildingsPerReport == 0 &&
                !progress(static_cast<double>(done - 1) / static_cast<double>(order.size())))
                throw contract::Stopped{};
            const coverage::ValuesUnder under = m_values.valuesUnder(first, m_withCounts);
            without += under.value ? 0 : 1;
            keep(m_read.values[footprints.buildings[first].feature], under);
        }
        m_read.unit = m_raster->unit();
        for (const double value : m_classes)
            m_read.classes.push_back({value, nameOf(value)});
        return without;
    }

private:
    void keep(FeatureValue &kept, const coverage::ValuesUnder &under)
    {
        kept.value = under.value;
        kept.pixels = under.pixels;
        if (!m_withCounts)
            return;
        kept.countBegin = static_cast<std::uint32_t>(m_read.counts.size());
        m_read.counts.insert(m_read.counts.end(), under.counts.begin(), under.counts.end());
        kept.countEnd = static_cast<std::uint32_t>(m_read.counts.size());
        for (const ValueCount &count : under.counts)
            m_classes.insert(count.value);
        const bool isNumber = !m_hasClasses && !m_classes.empty() && *m_classes.begin() < 0;
        if (isNumber || m_classes.size() > MaxClasses)
            giveUpClasses();
    }

    void giveUpClasses()
    {
        m_withCounts = false;
        m_classes.clear();
        m_read.counts = {};
        for (FeatureValue &value : m_read.values)
            value.countBegin = value.countEnd = 0;
    }

    std::string nameOf(double value) const
    {
        if (std::string name = m_raster->className(value); !name.empty())
            return name;
        std::ostringstream text;
        text.imbue(std::locale::classic());
        text << static_cast<std::int64_t>(value);
        return text.str();
    }

    CityValues &m_read;
    std::unique_ptr<CoverageRaster> m_raster;
    PositionTransform m_transform;
    bool m_hasClasses; ///< the file says so
    bool m_withCounts;
    BuildingValues m_values;
    std::set<double> m_classes;
};

/// Counts the buildings that have no value in the field of the colours.
///
/// @throws BadLayer  the field cannot be read
void countFieldValues(CityValues &read, const contract::BuildingDocument &document,
                      const std::vector<std::string> &directories, const Progress &progress)
{
    const Footprints &footprints = read.city.footprints;
    contract::CityCounts &counts = read.city.counts;
    const FieldValues values = readColorField(document, directories, progress);
    for (const std::size_t first : firstBuildings(footprints)) {
        const std::uint32_t feature = footprints.buildings[first].feature;
        counts.substitutes.noValue += values.hasValue(footprints.features[feature].row) ? 0 : 1;
    }
    if (counts.substitutes.noValue > 0)
        read.notices.push_back(contract::formatted(
            "MESS_SCENE_NO_FIELD_VALUE", {std::to_string(counts.substitutes.noValue),
                                          std::to_string(counts.drawn), document.colors.field}));
}

} // namespace

CityValues readCityValues(const contract::BuildingDocument &document,
                          const std::vector<std::string> &directories, ClassCounts classCounts,
                          const Progress &progress)
{
    const std::optional<RasterColors> colors = colorsOf(document);
    const bool isByField = !colors && !document.colors.field.empty();
    const double inputsShare = colors || isByField ? InputsShare : 1;
    CityValues read;
    read.city = readCityInputs(document, directories, read.notices,
                               [&](double share) { return progress(share * inputsShare); });
    if (!colors && !isByField)
        return read;
    const Progress valuesProgress = [&](double share) {
        return progress(InputsShare + share * (1 - InputsShare));
    };
    contract::CityCounts &counts = read.city.counts;
    std::size_t &without = counts.substitutes.noValue;
    try {
        if (isByField) {
            countFieldValues(read, document, directories, valuesProgress);
            return read;
        }
        without = Valuer(read, *colors, directories, classCounts).run(valuesProgress);
    } catch (const contract::BadLayer &fault) {
        read.notices.push_back(fault.what());
        without = counts.drawn;
        return read;
    }
    read.hasRaster = true;
    if (without > 0)
        read.notices.push_back(withoutValue(without, counts.drawn, *colors));
    return read;
}

} // namespace vlt::city
