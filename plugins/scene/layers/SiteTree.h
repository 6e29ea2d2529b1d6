#pragma once

#include "plugins/scene/layers/SiteRecords.h"

#include <osg/BoundingBox>

#include <cstdint>
#include <memory>
#include <vector>

namespace vlt::scene {

/// Sites cut into halves along their longer extent, again and again, so that neighbours lie
/// together whatever their density.
struct SiteTree
{
    osg::BoundingBoxd feet;
    std::vector<std::uint32_t> sites; ///< of a leaf
    std::size_t siteCount = 0;        ///< of the whole branch
    std::unique_ptr<SiteTree> low;    ///< both or none
    std::unique_ptr<SiteTree> high;

    bool isLeaf() const { return !low; }
};

/// @param largestLeaf  most sites of a leaf, at least 1
std::unique_ptr<SiteTree> growSiteTree(const std::vector<SiteRecord> &sites,
                                       std::size_t largestLeaf);

} // namespace vlt::scene
