#include "plugins/scene/buildings/CityNodes.h"

#include "city/CityInputs.h"
#include "contract/DrawnCount.h"
#include "plugins/scene/buildings/CityMesh.h"
#include "plugins/scene/buildings/CityTree.h"
#include "plugins/scene/mesh/DeferredNode.h"
#include "plugins/scene/mesh/MovedNode.h"
#include "plugins/scene/reading/Stopped.h"

#include <osg/Geode>
#include <osg/LOD>
#include <osg/Point>
#include <osg/ShadeModel>
#include <osg/ValueObject>

#include <algorithm>
#include <initializer_list>
#include <limits>

namespace vlt::scene {

namespace {

constexpr std::size_t BuildingsPerBlock = 8192; ///< maximum in one drawable of simple buildings
constexpr double BlockWidthShare = 0.5;         ///< maximum width / distance of visibility
constexpr float DotPixels = 2;
constexpr float Endless = std::numeric_limits<float>::max();

using Ids = std::vector<std::uint32_t>;

osg::ref_ptr<osg::StateSet> makeState()
{
    osg::ref_ptr<osg::StateSet> state = plainFaceState();
    state->setAttributeAndModes(new osg::ShadeModel(osg::ShadeModel::FLAT));
    state->setAttributeAndModes(new osg::Point(DotPixels));
    return state;
}

/// The data that the tiles of a city share, as long as one of them exists.
struct Content
{
    std::shared_ptr<const CityModel> city;
    CityStyle look;
    osg::ref_ptr<osg::StateSet> state = makeState();
    osg::ref_ptr<osg::StateSet> translucent = translucentState(*state);

    osg::ref_ptr<osg::Node> asNode(std::initializer_list<const CityMesh *> meshes) const
    {
        osg::ref_ptr<osg::Geode> geode = new osg::Geode;
        for (const CityMesh *mesh : meshes)
            mesh->addTo(*geode, state, translucent);
        return geode;
    }

    osg::ref_ptr<osg::Node> extruded(std::span<const std::uint32_t> buildings,
                                     const osg::Vec3d &origin) const
    {
        CityMesh mesh(*city, origin);
        for (const std::uint32_t building : buildings)
            mesh.addBuilding(building, look.skirtM);
        return asNode({&mesh});
    }

    osg::ref_ptr<osg::Node> boxes(std::span<const std::uint32_t> buildings,
                                  const osg::Vec3d &origin) const
    {
        CityMesh mesh(*city, origin);
        for (const std::uint32_t building : buildings)
            addBoxOrMore(mesh, building, Boxes.largestM);
        return asNode({&mesh});
    }

    osg::ref_ptr<osg::Node> dots(std::span<const std::uint32_t> buildings,
                                 const osg::Vec3d &origin) const
    {
        CityMesh large(*city, origin);
        CityMesh small(*city, origin);
        for (const std::uint32_t building : buildings) {
            if (extentM(building) > Dots.largestM)
                addBoxOrMore(large, building, MaxBoxAmongDotsM);
            else
                small.addDot(building);
        }
        return asNode({&large, &small});
    }

    void addBoxOrMore(CityMesh &mesh, std::uint32_t building, double largestM) const
    {
        if (extentM(building) > largestM)
            mesh.addBuilding(building, 0);
        else
            mesh.addBoxes(building);
    }

    double extentM(std::uint32_t building) const
    {
        osg::BoundingBoxd bound;
        const Footprints &footprints = city->footprints;
        for (const Footprints::Ring &ring : footprints.ringsOf(footprints.buildings[building])) {
            for (std::uint32_t i = ring.begin; i < ring.end; ++i)
                bound.expandBy(city->positions[i].x, city->positions[i].y, 0);
        }
        return std::max(bound.xMax() - bound.xMin(), bound.yMax() - bound.yMin());
    }
};

class CityBuilder
{
public:
    CityBuilder(std::shared_ptr<const Content> content, const Progress &progress)
        : m_content(std::move(content))
        , m_progress(progress)
        , m_isDeferred(m_content->city->positions.size() > MaxPositionsAtOnce)
        , m_isFirst(m_content->city->footprints.buildings.size())
    {
        for (const std::size_t first : city::firstBuildings(m_content->city->footprints))
            m_isFirst[first] = true;
    }

    osg::ref_ptr<osg::Node> branch(const CityTree &tree, bool isInBlock)
    {
        const bool isBlock = !isInBlock && (tree.isTile() || fitsBlock(tree));
        osg::ref_ptr<osg::Node> inner;
        if (tree.isTile())
            inner = tile(tree);
        else {
            osg::ref_ptr<osg::Group> group = new osg::Group;
            for (const auto &part : tree.branches)
                group->addChild(branch(*part, isInBlock || isBlock));
            inner = group;
        }
        return isBlock ? block(tree, inner) : inner;
    }

private:
    bool fitsBlock(const CityTree &tree) const
    {
        const double widthM =
            std::max(tree.bound.xMax() - tree.bound.xMin(), tree.bound.yMax() - tree.bound.yMin());
        return tree.buildings.size() <= BuildingsPerBlock &&
               widthM <= BlockWidthShare * m_content->look.extrudedVisibilityM;
    }

    osg::BoundingSphere boundOf(const CityTree &tree) const
    {
        osg::BoundingBoxd bound = tree.bound;
        bound.zMin() -= m_content->look.skirtM;
        return {bound.center(), static_cast<float>(bound.radius())};
    }

    static osg::ref_ptr<osg::LOD> levels(const osg::BoundingSphere &bound)
    {
        osg::ref_ptr<osg::LOD> lod = new osg::LOD;
        lod->setCenterMode(osg::LOD::USER_DEFINED_CENTER);
        lod->setCenter(bound.center());
        lod->setRadius(bound.radius());
        return lod;
    }

    /// @param make  makes the node of a branch's buildings, relative to an origin
    template<typename Maker>
    osg::ref_ptr<osg::Node> content(const CityTree &tree, bool isDeferred, const Maker &make) const
    {
        const osg::BoundingSphere bound = boundOf(tree);
        const osg::Vec3d origin = bound.center();
        if (!isDeferred)
            return counted(moved(make(*m_content, tree.buildings, origin), origin), tree);
        const auto later = [make, origin, content = m_content,
                            ids = Ids(tree.buildings.begin(), tree.buildings.end())] {
            return make(*content, ids, origin);
        };
        return counted(
            moved(new DeferredNode(later, osg::BoundingSphere({}, bound.radius())), origin), tree);
    }

    osg::ref_ptr<osg::Node> counted(const osg::ref_ptr<osg::Node> &node, const CityTree &tree) const
    {
        const auto count = std::count_if(tree.buildings.begin(), tree.buildings.end(),
                                         [this](std::uint32_t one) { return m_isFirst[one]; });
        node->setUserValue(contract::BuildingsOfNode, static_cast<unsigned>(count));
        return node;
    }

    osg::ref_ptr<osg::Node> tile(const CityTree &tree)
    {
        using Buildings = std::span<const std::uint32_t>;
        const CityStyle &look = m_content->look;
        const osg::BoundingSphere bound = boundOf(tree);
        const float texturedM =
            look.makeTextured ? static_cast<float>(look.texturedVisibilityM) + bound.radius() : 0;
        const float extrudedM = static_cast<float>(look.extrudedVisibilityM) + bound.radius();
        osg::ref_ptr<osg::LOD> lod = levels(bound);
        if (look.makeTextured)
            lod->addChild(content(tree, true,
                                  [](const Content &content, Buildings ids, const osg::Vec3d &at) {
                                      return content.look.makeTextured(ids, at);
                                  }),
                          0, texturedM);
        if (extrudedM > texturedM)
            lod->addChild(content(tree, m_isDeferred,
                                  [](const Content &content, Buildings ids, const osg::Vec3d &at) {
                                      return content.extruded(ids, at);
                                  }),
                          texturedM, extrudedM);
        m_done += tree.buildings.size();
        if (!m_progress(static_cast<double>(m_done) /
                        static_cast<double>(m_content->city->footprints.buildings.size())))
            throw Stopped{};
        return lod;
    }

    /// The node of a branch whose buildings are simpler at low resolutions.
    osg::ref_ptr<osg::Node> block(const CityTree &tree, const osg::ref_ptr<osg::Node> &inner) const
    {
        using Buildings = std::span<const std::uint32_t>;
        const float width = 2 * boundOf(tree).radius();
        const float boxPixels = width / static_cast<float>(Boxes.pixelM);
        const float dotPixels = width / static_cast<float>(Dots.pixelM);
        osg::ref_ptr<osg::LOD> byPixels = levels(boundOf(tree));
        byPixels->setRangeMode(osg::LOD::PIXEL_SIZE_ON_SCREEN);
        byPixels->addChild(
            visible(tree, [](const Content &content, Buildings ids,
                             const osg::Vec3d &at) { return content.dots(ids, at); }),
            0, dotPixels);
        byPixels->addChild(
            visible(tree, [](const Content &content, Buildings ids,
                             const osg::Vec3d &at) { return content.boxes(ids, at); }),
            dotPixels, boxPixels);
        byPixels->addChild(inner, boxPixels, Endless);
        return byPixels;
    }

    /// A node of a branch that is visible up to the distance of visibility.
    template<typename Maker>
    osg::ref_ptr<osg::Node> visible(const CityTree &tree, const Maker &make) const
    {
        const osg::BoundingSphere bound = boundOf(tree);
        osg::ref_ptr<osg::LOD> lod = levels(bound);
        lod->addChild(content(tree, m_isDeferred, make), 0,
                      static_cast<float>(m_content->look.extrudedVisibilityM) + bound.radius());
        return lod;
    }

    std::shared_ptr<const Content> m_content;
    const Progress &m_progress;
    bool m_isDeferred;
    std::vector<bool> m_isFirst; ///< by building: whether it is the first part of a feature
    std::size_t m_done = 0;
};

} // namespace

osg::ref_ptr<osg::Group> buildCity(const std::shared_ptr<const CityModel> &city,
                                   const CityStyle &look, const Progress &progress)
{
    osg::ref_ptr<osg::Group> group = new osg::Group;
    const CityTiles tiles = growCityTree(*city, look.tileSizeM);
    if (tiles.root)
        group->addChild(CityBuilder(std::make_shared<Content>(Content{city, look}), progress)
                            .branch(*tiles.root, false));
    return group;
}

} // namespace vlt::scene
