#include "city/PositionTransform.h"

#include "localfiles/NoNetwork.h"

#include <cpl_error.h>

#include <cmath>
#include <vector>

namespace vlt::city {

PositionTransform::PositionTransform(const std::string &from, const OGRSpatialReference *to)
{
    if (from.empty() || !to || to->IsEmpty())
        return;
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const localfiles::NoNetwork offline;
    OGRSpatialReference source;
    source.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    if (source.importFromWkt(from.c_str()) != OGRERR_NONE) {
        m_isUsable = false;
        return;
    }
    OGRSpatialReference target(*to);
    target.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    if (source.IsSame(&target))
        return;
    m_transformation.reset(OGRCreateCoordinateTransformation(&source, &target));
    m_isUsable = m_transformation != nullptr;
}

void PositionTransform::apply(std::span<contract::Place> positions) const
{
    if (!m_transformation || positions.empty())
        return;
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const std::size_t count = positions.size();
    std::vector<double> x;
    std::vector<double> y;
    for (const contract::Place &position : positions) {
        x.push_back(position.x);
        y.push_back(position.y);
    }
    std::vector<int> succeeded(count, FALSE);
    m_transformation->Transform(static_cast<int>(count), x.data(), y.data(), nullptr,
                                succeeded.data());
    for (std::size_t i = 0; i < count; ++i)
        positions[i] = succeeded[i] ? contract::Place{x[i], y[i]} : contract::Place{NAN, NAN};
}

} // namespace vlt::city
