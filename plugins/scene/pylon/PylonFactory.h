#pragma once

#include "plugins/scene/parametric/PylonObject.h"
#include "plugins/scene/pylon/MastDesign.h"
#include "plugins/scene/pylon/SceneMaterials.h"

#include <osg/Group>

#include <map>
#include <memory>
#include <mutex>

namespace vlt::scene {

/// Largest number of vertices of a pylon, both representations together.
inline constexpr std::size_t MaxPylonVertices = 700000;

/// When the precise representation is made.
enum class PreciseModel {
    AtOnce,
    WhenNeeded, ///< once somebody is near enough to see it: for thousands of pylons
};

/// Builds pylons that share what is equal: states, masts, whole pylons. Nodes may outlive their
/// factory. One thread at a time calls it; its nodes may be drawn by any.
///
/// A pylon is a transform to its foot (x east, y north, z up, metres) above an osg::LOD with two
/// children: the precise representation from 0 to the realistic distance and the symbolic one from
/// there to the symbolic distance; none of both beyond. The distances count from half the mast's
/// height.
class PylonFactory
{
public:
    explicit PylonFactory(PreciseModel precise = PreciseModel::AtOnce);
    ~PylonFactory();
    PylonFactory(const PylonFactory &) = delete;
    PylonFactory &operator=(const PylonFactory &) = delete;

    /// A pylon at its place. Pylons of equal design share all below their transforms.
    osg::ref_ptr<osg::Node> build(const PylonObject &pylon);

    /// The pylon with its foot at the origin; the same node for equal designs.
    osg::ref_ptr<osg::Node> design(const PylonDesign &pylon);

    /// One of the representations alone, foot at the origin.
    osg::ref_ptr<osg::Node> precise(const PylonDesign &pylon);
    osg::ref_ptr<osg::Node> symbolic(const PylonDesign &pylon);

    /// The states, for readers that put sectors of many pylons into one drawable.
    const SceneMaterials &materials() const;

private:
    class Parts;
    osg::ref_ptr<Parts> m_parts;
    PreciseModel m_precise;
    std::map<PylonDesign, osg::ref_ptr<osg::Node>> m_designs;
};

/// A single pylon at its place.
osg::ref_ptr<osg::Node> buildPylon(const PylonObject &pylon);

} // namespace vlt::scene
