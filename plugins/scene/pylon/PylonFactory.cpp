#include "plugins/scene/pylon/PylonFactory.h"

#include "plugins/scene/mesh/DeferredNode.h"
#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/mesh/Solids.h"
#include "plugins/scene/pylon/Antennas.h"
#include "plugins/scene/pylon/BothSidesGeometry.h"
#include "plugins/scene/pylon/Fittings.h"
#include "plugins/scene/pylon/Masts.h"
#include "plugins/scene/pylon/Sectors.h"

#include <osg/Geode>
#include <osg/LOD>
#include <osg/MatrixTransform>

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

void addDrawable(osg::Geode &geode, const Mesh &mesh, osg::StateSet *state,
                 const osg::ref_ptr<osg::Geometry> &geometry = new osg::Geometry)
{
    if (mesh.empty())
        return;
    mesh.fill(*geometry);
    geometry->setStateSet(state);
    geode.addDrawable(geometry);
}

osg::ref_ptr<osg::Geode> drawn(const Meshes &meshes, const SceneMaterials &materials)
{
    osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    addDrawable(*geode, meshes.metal, materials.metal);
    addDrawable(*geode, meshes.matt, materials.matt);
    return geode;
}

/// A sphere that contains the precise representation, which need not have been made.
osg::BoundingSphere preciseBound(const PylonDesign &pylon, const MastDesign &mast)
{
    double reach = 0.6 * mast.heightM + 2.5 * mast.widthM + 3;
    double top = mast.heightM + RodM;
    for (const Transmitter &transmitter : pylon.transmitters) {
        const AntennaSize size = antennaSize(pylon, transmitter);
        reach = std::max(reach, 2.5 * mast.widthM + 3 + 2 * size.length);
        top = std::max(top, transmitter.heightM + size.length);
    }
    return {osg::Vec3d(0, 0, top / 2), static_cast<float>(std::hypot(reach, top / 2 + 1))};
}

} // namespace

/// The parts that the nodes of a factory share, also after its destruction.
class PylonFactory::Parts : public osg::Referenced
{
public:
    /// The mast's drawables; the same node for equal masts. Any drawing thread may call it.
    osg::ref_ptr<osg::Node> mast(const MastDesign &design)
    {
        const std::lock_guard lock(m_guard);
        osg::ref_ptr<osg::Node> &node = m_masts[design];
        if (!node) {
            Meshes meshes;
            addMast(meshes, design);
            node = drawn(meshes, *materials);
        }
        return node;
    }

    osg::ref_ptr<osg::Node> precise(const PylonDesign &pylon)
    {
        const MastDesign design = mastDesign(pylon);
        Meshes antennas;
        addAntennas(antennas, placeAntennas(pylon, design), hasCylindricalAntennas(pylon.type));
        osg::ref_ptr<osg::Group> group = new osg::Group;
        group->addChild(mast(design));
        if (!antennas.matt.empty())
            group->addChild(drawn(antennas, *materials));
        return group;
    }

    const osg::ref_ptr<SceneMaterials> materials = new SceneMaterials;

private:
    ~Parts() override = default;

    std::mutex m_guard;
    std::map<MastDesign, osg::ref_ptr<osg::Node>> m_masts;
};

PylonFactory::PylonFactory(PreciseModel precise) : m_parts(new Parts), m_precise(precise) {}
PylonFactory::~PylonFactory() = default;

const SceneMaterials &PylonFactory::materials() const
{
    return *m_parts->materials;
}

osg::ref_ptr<osg::Node> PylonFactory::precise(const PylonDesign &pylon)
{
    return m_parts->precise(pylon);
}

osg::ref_ptr<osg::Node> PylonFactory::symbolic(const PylonDesign &pylon)
{
    const SceneMaterials &materials = *m_parts->materials;
    const std::vector<Sector> sectors = stackSectors(pylon);
    Meshes plain;
    const double mastTop = addPlainMast(plain, mastDesign(pylon));
    double top = mastTop;
    for (const Sector &sector : sectors)
        top = std::max(top, sector.bottomM + sector.heightM);
    if (top > mastTop) { // a thin axis for sectors above the mast
        const double radius = 0.04 * pylon.widthM;
        addTube(plain.metal, {0, 0, mastTop}, {0, 0, top}, radius, radius, 8, palette::Galvanised,
                Ends::Closed);
    }
    osg::ref_ptr<osg::Geode> geode = drawn(plain, materials);

    Mesh edges(Mesh::Kind::Lines);
    for (const Sector &sector : sectors) {
        // A drawable for each sector, because the renderer sorts translucent drawables by distance.
        Mesh fill;
        addSector(fill, edges, sector, {});
        if (sector.color.a() < 255)
            addDrawable(*geode, fill, materials.translucentSector, new BothSidesGeometry);
        else
            addDrawable(*geode, fill, materials.opaqueSector);
    }
    addDrawable(*geode, edges, materials.sectorEdges);
    return geode;
}

osg::ref_ptr<osg::Node> PylonFactory::design(const PylonDesign &pylon)
{
    osg::ref_ptr<osg::Node> &node = m_designs[pylon];
    if (node)
        return node;
    const MastDesign mast = mastDesign(pylon);
    osg::ref_ptr<osg::Node> model;
    if (m_precise == PreciseModel::AtOnce)
        model = m_parts->precise(pylon);
    else
        model = new DeferredNode([parts = m_parts, pylon] { return parts->precise(pylon); },
                                 preciseBound(pylon, mast));
    osg::ref_ptr<osg::LOD> levels = new osg::LOD;
    levels->setCenterMode(osg::LOD::USER_DEFINED_CENTER);
    levels->setCenter(osg::Vec3d(0, 0, mast.heightM / 2));
    const auto realistic = static_cast<float>(pylon.realisticDistanceM);
    const auto farthest = static_cast<float>(pylon.symbolicDistanceM);
    levels->addChild(model, 0, realistic);
    levels->addChild(symbolic(pylon), realistic, std::max(realistic, farthest));
    node = levels;
    return node;
}

osg::ref_ptr<osg::Node> PylonFactory::build(const PylonObject &pylon)
{
    osg::ref_ptr<osg::MatrixTransform> place = new osg::MatrixTransform(
        osg::Matrixd::rotate(osg::DegreesToRadians(-pylon.northDeg), osg::Z_AXIS) *
        osg::Matrixd::translate(pylon.foot));
    place->addChild(design(pylon.design));
    return place;
}

osg::ref_ptr<osg::Node> buildPylon(const PylonObject &pylon)
{
    return PylonFactory().build(pylon);
}

} // namespace vlt::scene
