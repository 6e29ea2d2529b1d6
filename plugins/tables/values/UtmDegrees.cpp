#include "plugins/tables/values/Utm.h"

#include <proj.h>

#include <map>
#include <memory>
#include <string>

namespace vlt::driver {

namespace {

struct Release
{
    void operator()(PJ_CONTEXT *context) const { proj_context_destroy(context); }
    void operator()(PJ *projection) const { proj_destroy(projection); }
};

/// Projections made so far. A context of PROJ belongs to one thread.
class Zones
{
public:
    PJ *projection(const UtmGrid &grid)
    {
        const auto [entry, isNew] = m_made.try_emplace({grid.number, grid.isSouth});
        if (isNew) {
            const std::string definition =
                "+proj=utm +ellps=WGS84 +zone=" + std::to_string(grid.number) +
                (grid.isSouth ? " +south" : "");
            entry->second.reset(proj_create(m_context.get(), definition.c_str()));
        }
        return entry->second.get();
    }

private:
    std::unique_ptr<PJ_CONTEXT, Release> m_context{proj_context_create()};
    std::map<std::pair<int, bool>, std::unique_ptr<PJ, Release>> m_made;
};

} // namespace

std::optional<std::pair<double, double>> degreesOfUtm(const UtmGrid &grid, double eastingM,
                                                      double northingM)
{
    thread_local Zones zones;
    PJ *projection = zones.projection(grid);
    if (!projection)
        return std::nullopt;
    const PJ_COORD place = proj_trans(projection, PJ_INV, proj_coord(eastingM, northingM, 0, 0));
    if (proj_errno(projection) != 0)
        return std::nullopt;
    return std::pair(proj_todeg(place.lp.lam), proj_todeg(place.lp.phi));
}

} // namespace vlt::driver
