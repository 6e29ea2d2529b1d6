#include "plugins/scene/layers/SiteTree.h"

#include <algorithm>
#include <numeric>
#include <span>

namespace vlt::scene {

namespace {

std::unique_ptr<SiteTree> grow(const std::vector<SiteRecord> &sites, std::size_t largestLeaf,
                               std::span<std::uint32_t> chosen)
{
    auto tree = std::make_unique<SiteTree>();
    tree->siteCount = chosen.size();
    for (const std::uint32_t site : chosen)
        tree->feet.expandBy(sites[site].foot);
    if (chosen.size() <= largestLeaf) {
        tree->sites.assign(chosen.begin(), chosen.end());
        return tree;
    }
    const bool alongX =
        tree->feet.xMax() - tree->feet.xMin() > tree->feet.yMax() - tree->feet.yMin();
    const int axis = alongX ? 0 : 1;
    const std::size_t half = chosen.size() / 2;
    std::nth_element(chosen.begin(), chosen.begin() + static_cast<std::ptrdiff_t>(half),
                     chosen.end(), [&](std::uint32_t a, std::uint32_t b) {
                         return sites[a].foot[axis] < sites[b].foot[axis];
                     });
    tree->low = grow(sites, largestLeaf, chosen.first(half));
    tree->high = grow(sites, largestLeaf, chosen.subspan(half));
    return tree;
}

} // namespace

std::unique_ptr<SiteTree> growSiteTree(const std::vector<SiteRecord> &sites,
                                       std::size_t largestLeaf)
{
    std::vector<std::uint32_t> all(sites.size());
    std::iota(all.begin(), all.end(), 0);
    return grow(sites, largestLeaf, all);
}

} // namespace vlt::scene
