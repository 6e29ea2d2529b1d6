#pragma once

#include "plugins/scene/layers/SiteRecords.h"

#include <osg/BoundingBox>

#include <cstdint>
#include <memory>
#include <vector>

namespace vlt::scene {

/// A tree of sites. Each branch divides its sites into halves across their longer extent, so that
/// neighbours are together, independently of their density.
struct SiteTree
{
    osg::BoundingBoxd feet;
    std::vector<std::uint32_t> sites; ///< of a leaf
    std::size_t siteCount = 0;        ///< of the whole branch
    std::unique_ptr<SiteTree> low;    ///< null, like `high`, for a leaf
    std::unique_ptr<SiteTree> high;

    bool isLeaf() const { return !low; }
};

/// @param largestLeaf  maximum number of sites in a leaf, at least 1
std::unique_ptr<SiteTree> growSiteTree(const std::vector<SiteRecord> &sites,
                                       std::size_t largestLeaf);

} // namespace vlt::scene
