#include "city/HeightCounts.h"

#include "city/FootprintSource.h"
#include "city/HeightRule.h"
#include "contract/BadLayer.h"
#include "contract/Stopped.h"
#include "localfiles/FeatureReading.h"
#include "localfiles/NoNetwork.h"

#include <cpl_error.h>

#include <algorithm>

namespace vlt::city {

namespace {

constexpr std::size_t FeaturesPerReport = 2000;

} // namespace

HeightValues::HeightValues(const std::string &path, const contract::BuildingFootprints &source,
                           const Progress &progress)
{
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    const GDALDatasetUniquePtr dataset = openFootprints(path);
    OGRLayer &layer = findLayer(*dataset, source.layer);
    const int field = findField(layer, source.heightField);
    const int other = findField(layer, source.heights.elseField);
    select(layer, source.where, {field, other}, Shapes::Ignored);
    const auto expected = static_cast<double>(std::max<GIntBig>(layer.GetFeatureCount(FALSE), 1));
    while (const OGRFeatureUniquePtr feature = localfiles::nextFeature(layer)) {
        m_features.push_back({heightAt(*feature, field), heightAt(*feature, other)});
        const double share = static_cast<double>(m_features.size()) / expected;
        if (m_features.size() % FeaturesPerReport == 0 && !progress(std::min(share, 1.0)))
            throw contract::Stopped{};
    }
}

HeightCounts HeightValues::count(const contract::BuildingHeights &rule) const
{
    HeightCounts counts;
    for (const Values &values : m_features) {
        const auto resolved = resolveHeight(rule, values.field, values.other);
        if (const auto *reason = std::get_if<contract::LeftOutReason>(&resolved)) {
            ++countOf(*reason, counts.leftOut);
            continue;
        }
        switch (std::get<ResolvedHeight>(resolved).source) {
        case HeightSource::Field:
            ++counts.fromField;
            break;
        case HeightSource::ElseField:
            ++counts.fromElseField;
            break;
        case HeightSource::Default:
            ++counts.byDefault;
            break;
        }
    }
    return counts;
}

} // namespace vlt::city
