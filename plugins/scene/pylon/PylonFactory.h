#pragma once

#include "plugins/scene/parametric/PylonObject.h"
#include "plugins/scene/pylon/MastDesign.h"
#include "plugins/scene/pylon/SceneMaterials.h"

#include <osg/Group>

#include <map>
#include <memory>
#include <mutex>

namespace vlt::scene {

/// Maximum number of vertices of a pylon in both representations together.
inline constexpr std::size_t MaxPylonVertices = 700000;

/// The time at which the precise representation is made.
enum class PreciseModel {
    AtOnce,
    WhenNeeded, ///< when it is drawn for the first time: for thousands of pylons
};

/// Builds pylons that share equal parts: states, masts, whole pylons. Nodes may exist longer than
/// their factory. Only one thread at a time may call the factory; any thread may draw its nodes.
///
/// A pylon is a transform to its foot (x east, y north, z up, metres) above an osg::LOD with two
/// children: the precise representation from 0 to the realistic distance, and the symbolic one from
/// there to the symbolic distance. At larger distances nothing is drawn. The distances are measured
/// from half the mast's height.
class PylonFactory
{
public:
    explicit PylonFactory(PreciseModel precise = PreciseModel::AtOnce);
    ~PylonFactory();
    PylonFactory(const PylonFactory &) = delete;
    PylonFactory &operator=(const PylonFactory &) = delete;

    /// A pylon at its position. Pylons of equal design share everything below their transforms.
    osg::ref_ptr<osg::Node> build(const PylonObject &pylon);

    /// A pylon with its foot at the origin; the same node for equal designs.
    osg::ref_ptr<osg::Node> design(const PylonDesign &pylon);

    /// One representation only, with the foot at the origin.
    osg::ref_ptr<osg::Node> precise(const PylonDesign &pylon);
    osg::ref_ptr<osg::Node> symbolic(const PylonDesign &pylon);

    /// The states, for readers that combine sectors of many pylons in one drawable.
    const SceneMaterials &materials() const;

private:
    class Parts;
    osg::ref_ptr<Parts> m_parts;
    PreciseModel m_precise;
    std::map<PylonDesign, osg::ref_ptr<osg::Node>> m_designs;
};

/// A single pylon at its position.
osg::ref_ptr<osg::Node> buildPylon(const PylonObject &pylon);

} // namespace vlt::scene
