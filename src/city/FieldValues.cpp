#include "city/FieldValues.h"

#include "city/FootprintSource.h"
#include "contract/NoDataText.h"
#include "contract/Stopped.h"
#include "localfiles/FeatureReading.h"
#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"

#include <cpl_error.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>
#include <unordered_map>

namespace vlt::city {

namespace {

constexpr std::size_t FeaturesPerReport = 2000;
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

double numberOf(const OGRFeature &feature, int field)
{
    if (!feature.IsFieldSetAndNotNull(field))
        return NaN;
    if (feature.GetFieldDefnRef(field)->GetType() == OFTString)
        return contract::noDataNumber(feature.GetFieldAsString(field)).value_or(NaN);
    const double number = feature.GetFieldAsDouble(field);
    return std::isfinite(number) ? number : NaN;
}

/// Numbers the different texts of a field.
class TextCounter
{
public:
    std::uint32_t indexOf(const OGRFeature &feature, int field)
    {
        const std::string text =
            feature.IsFieldSetAndNotNull(field) ? feature.GetFieldAsString(field) : "";
        if (text.find_first_not_of(' ') == std::string::npos)
            return FieldValues::NoText;
        const auto [known, isNew] =
            m_indexes.try_emplace(text, static_cast<std::uint32_t>(m_texts.size()));
        if (isNew)
            m_texts.push_back({text, 0});
        ++m_texts[known->second].features;
        return known->second;
    }

    /// Orders the texts and gives the values their new indexes.
    void finish(FieldValues &values) const
    {
        std::vector<std::uint32_t> order(m_texts.size());
        std::iota(order.begin(), order.end(), 0U);
        std::sort(order.begin(), order.end(), [this](std::uint32_t a, std::uint32_t b) {
            const FieldText &one = m_texts[a];
            const FieldText &other = m_texts[b];
            return std::tie(other.features, one.text) < std::tie(one.features, other.text);
        });
        std::vector<std::uint32_t> ranks(order.size());
        for (std::uint32_t rank = 0; rank < order.size(); ++rank) {
            ranks[order[rank]] = rank;
            values.distinct.push_back(m_texts[order[rank]]);
        }
        for (std::uint32_t &text : values.texts)
            text = text == FieldValues::NoText ? text : ranks[text];
    }

private:
    std::unordered_map<std::string, std::uint32_t> m_indexes;
    std::vector<FieldText> m_texts;
};

} // namespace

FieldValues readFieldValues(const std::string &path, const contract::BuildingFootprints &source,
                            const std::string &field, FieldKind kind, const Progress &progress)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset = openFootprints(path);
    OGRLayer &layer = findLayer(*dataset, source.layer);
    const int index = findField(layer, field);
    select(layer, source.where, {index}, Shapes::Ignored);
    const auto expected = static_cast<double>(std::max<GIntBig>(layer.GetFeatureCount(FALSE), 1));
    FieldValues values;
    TextCounter texts;
    std::size_t done = 0;
    while (const OGRFeatureUniquePtr feature = localfiles::nextFeature(layer)) {
        if (kind == FieldKind::Texts)
            values.texts.push_back(texts.indexOf(*feature, index));
        else
            values.numbers.push_back(numberOf(*feature, index));
        if (++done % FeaturesPerReport == 0 &&
            !progress(std::min(static_cast<double>(done) / expected, 1.0)))
            throw contract::Stopped{};
    }
    texts.finish(values);
    return values;
}

FieldValues readColorField(const contract::BuildingDocument &document,
                           const std::vector<std::string> &directories, const Progress &progress)
{
    const bool areTexts = document.colors.coloring == contract::FieldColoring::Distinct;
    return readFieldValues(localfiles::locateDataset(document.footprints.file, directories),
                           document.footprints, document.colors.field,
                           areTexts ? FieldKind::Texts : FieldKind::Numbers, progress);
}

} // namespace vlt::city
