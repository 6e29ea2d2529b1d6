#include "plugins/scene/layers/PylonTiles.h"

#include "contract/SceneObjects.h"
#include "plugins/scene/layers/SiteLabels.h"
#include "plugins/scene/layers/SiteSymbols.h"
#include "plugins/scene/layers/SiteTree.h"
#include "plugins/scene/mesh/DeferredNode.h"
#include "plugins/scene/mesh/MovedNode.h"
#include "plugins/scene/mesh/Palette.h"
#include "plugins/scene/pylon/EdgedState.h"
#include "plugins/scene/pylon/PylonFactory.h"
#include "plugins/scene/pylon/Sectors.h"
#include "plugins/scene/reading/ObjectRanges.h"

#include <osg/Geode>
#include <osg/LOD>
#include <osg/Point>
#include <osg/ValueObject>

#include <algorithm>
#include <cmath>
#include <limits>
#include <mutex>
#include <optional>

namespace vlt::scene {

namespace {

constexpr std::size_t SitesPerBlock = 4096; ///< maximum in one drawable of dots
constexpr double LabelRoom = 7; ///< distance up to which a name is visible / that to its neighbour
constexpr double LabelGapM = 4;
constexpr double RodM = 4; ///< more than the height of any part above a mast
/// Maximum number of precise pylons in a scene. If thousands are at one position, or the realistic
/// distance is large, all further ones are coarse, to bound time and memory.
constexpr std::size_t MaxPrecisePylons = 2000;
constexpr std::size_t MaxPreciseDesigns = 800;
constexpr float DotPixels = 4;
constexpr double DotPad = 0.01; ///< share of the distance at which dots begin
constexpr float Endless = std::numeric_limits<float>::max();
const Color Dot{255, 150, 40, 255};
/// Sectors of this share of the symbolic distance are small there, also in large pictures.
constexpr double SmallSectorShare = 0.015;

osg::ref_ptr<osg::StateSet> makeDotState()
{
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setAttributeAndModes(new osg::Point(DotPixels));
    return state;
}

/// The data that the tiles of a scene share, as long as one of them exists.
struct Content
{
    Content(PylonRecords &&all, TileContent made)
        : records(std::move(all))
        , isPickable(made == TileContent::WhenDrawn && records.sites.front().row > 0)
        , isWholeAtOnce(made == TileContent::AtOnce && records.sites.size() <= MaxSitesAtOnce)
        , isCoarseAtOnce(made == TileContent::AtOnce &&
                         records.sites.size() <= MaxCoarseSitesAtOnce)
        , hasSymbols(made == TileContent::WhenDrawn && records.sites.size() <= MaxSymbols)
        , factory(isWholeAtOnce ? PreciseModel::AtOnce : PreciseModel::WhenNeeded)
        , coarseOpaque(factory.materials().opaqueSector)
        , coarseTranslucent(factory.materials().translucentSector)
    {
        if (!hasSymbols)
            return;
        coarseOpaque = makeEdgedState(*coarseOpaque);
        coarseTranslucent = makeEdgedState(*coarseTranslucent);
    }

    PylonRecords records;
    bool isPickable;
    bool isWholeAtOnce;
    bool isCoarseAtOnce;
    bool hasSymbols;
    SiteSymbols symbols;
    SiteLabels labels;
    std::mutex guard; ///< several threads may cull
    PylonFactory factory;
    osg::ref_ptr<osg::StateSet> coarseOpaque; ///< of sectors
    osg::ref_ptr<osg::StateSet> coarseTranslucent;
    osg::ref_ptr<osg::StateSet> dotState = makeDotState();

    std::size_t pylonsMade = 0;     ///< precise ones, in all tiles
    std::vector<bool> designIsMade; ///< by design
    std::size_t designsMade = 0;

    /// Counts these sites as precise pylons; false if that would exceed the maximum.
    bool takeBudget(const std::vector<std::uint32_t> &sites)
    {
        designIsMade.resize(records.designs.size());
        std::size_t fresh = 0;
        for (const std::uint32_t site : sites)
            fresh += designIsMade[records.sites[site].design] ? 0 : 1;
        if (pylonsMade + sites.size() > MaxPrecisePylons || designsMade + fresh > MaxPreciseDesigns)
            return false;
        pylonsMade += sites.size();
        designsMade += fresh;
        for (const std::uint32_t site : sites)
            designIsMade[records.sites[site].design] = true;
        return true;
    }

    double dotPadM() const { return DotPad * records.designs.front().symbolicDistanceM; }

    const PylonDesign &designOf(std::uint32_t site) const
    {
        return records.designs[records.sites[site].design];
    }
};

using ContentPtr = std::shared_ptr<Content>;
using Sites = std::vector<std::uint32_t>;

/// Height of the top of a pylon with its sectors above its foot, in metres.
double topOf(const PylonDesign &design)
{
    double top = mastTopM(design);
    for (const Sector &sector : stackSectors(design))
        top = std::max(top, sector.bottomM + sector.heightM);
    return top;
}

/// @param padM  how much larger the bound is than the points, because small objects are culled
osg::ref_ptr<osg::Geometry> makeDots(const osg::ref_ptr<osg::Vec3Array> &points, double padM,
                                     osg::StateSet *state)
{
    osg::BoundingBox bound;
    for (const osg::Vec3 &point : *points)
        bound.expandBy(osg::BoundingSphere(point, static_cast<float>(padM)));
    osg::ref_ptr<osg::Vec4ubArray> color = new osg::Vec4ubArray(1, &Dot);
    color->setNormalize(true);
    osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    geometry->setUseDisplayList(false);
    geometry->setUseVertexBufferObjects(true);
    geometry->setVertexArray(points);
    geometry->setColorArray(color, osg::Array::BIND_OVERALL);
    geometry->addPrimitiveSet(
        new osg::DrawArrays(GL_POINTS, 0, static_cast<GLsizei>(points->size())));
    geometry->setStateSet(state);
    geometry->setInitialBound(bound);
    return geometry;
}

osg::ref_ptr<osg::Node> makeLabels(Content &content, const Sites &sites, const osg::Vec3d &origin,
                                   double visibleM)
{
    const std::lock_guard lock(content.guard); // a font is not safe for several threads
    osg::ref_ptr<osg::Group> group = new osg::Group;
    for (const std::uint32_t site : sites) {
        const SiteRecord &record = content.records.sites[site];
        const osg::Vec3d top(0, 0, topOf(content.designOf(site)) + LabelGapM);
        if (!record.name.empty())
            group->addChild(content.labels.make(record.name, record.foot - origin + top, visibleM));
    }
    return group;
}

osg::Geometry *addDrawable(osg::Geode &geode, const Mesh &mesh, osg::StateSet *state)
{
    if (mesh.empty())
        return nullptr;
    osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    mesh.fill(*geometry);
    geometry->setStateSet(state);
    geode.addDrawable(geometry);
    return geometry;
}

/// The sectors of a tile in one drawable.
struct Wedges
{
    Mesh mesh;
    osg::ref_ptr<osg::Vec2Array> places; ///< see addCoarseSector()
    ObjectRanges ranges;

    explicit Wedges(bool haveEdges) : places(haveEdges ? new osg::Vec2Array : nullptr) {}

    void begin(std::uint32_t site) { ranges.begin(site, mesh.indices().size()); }

    void addTo(osg::Geode &geode, osg::StateSet *state, bool isPickable) const
    {
        osg::Geometry *drawable = addDrawable(geode, mesh, state);
        if (drawable && places) {
            drawable->setTexCoordArray(0, places);
            drawable->setNormalArray(nullptr); // sectors have no light
        }
        if (drawable && isPickable)
            ranges.addTo(*drawable);
    }
};

/// The colour of a translucent sector at large distances, where only its near walls are drawn. They
/// need the opacity of both walls together.
Color forOneWall(Color color)
{
    const double through = 1 - color.a() / 255.0;
    color.a() = static_cast<unsigned char>(std::lround(255 * (1 - through * through)));
    return color;
}

/// Masts as lines and coarse sectors with edges, in few drawables for a whole tile.
osg::ref_ptr<osg::Node> makeCoarse(const Content &content, const Sites &sites,
                                   const osg::Vec3d &origin)
{
    Mesh masts(Mesh::Kind::Lines);
    Wedges opaque(content.hasSymbols);
    Wedges translucent(content.hasSymbols);
    for (const std::uint32_t site : sites) {
        const osg::Vec3d foot = content.records.sites[site].foot - origin;
        const PylonDesign &design = content.designOf(site);
        opaque.begin(site);
        translucent.begin(site);
        double top = design.heightM;
        for (Sector sector : stackSectors(design)) {
            Wedges &wedges = sector.color.a() < 255 ? translucent : opaque;
            top = std::max(top, sector.bottomM + sector.heightM);
            sector.color = forOneWall(sector.color);
            sector.azimuthDeg += content.records.sites[site].northDeg;
            addCoarseSector(wedges.mesh, wedges.places, sector, foot);
        }
        const unsigned low = masts.vertex(foot, {}, palette::Galvanised);
        masts.line(low, masts.vertex(foot + osg::Vec3d(0, 0, top), {}, palette::Galvanised));
    }
    const SceneMaterials &materials = content.factory.materials();
    osg::ref_ptr<osg::Geode> geode = new osg::Geode;
    addDrawable(*geode, masts, materials.sectorEdges);
    opaque.addTo(*geode, content.coarseOpaque, content.isPickable);
    translucent.addTo(*geode, content.coarseTranslucent, content.isPickable);
    return geode;
}

/// Symbols or dots.
///
/// @param spacings  of the sites in metres
osg::ref_ptr<osg::Geometry> makeMarks(const Content &content, const Sites &sites,
                                      const std::vector<double> &spacings, const osg::Vec3d &origin)
{
    if (content.hasSymbols) {
        std::vector<SiteSymbol> symbols;
        symbols.reserve(sites.size());
        for (std::size_t i = 0; i < sites.size(); ++i) {
            const SiteRecord &record = content.records.sites[sites[i]];
            symbols.push_back(
                {record.foot - origin, spacings[i], record.northDeg, &content.designOf(sites[i])});
        }
        return content.symbols.build(symbols, content.dotPadM());
    }
    osg::ref_ptr<osg::Vec3Array> points = new osg::Vec3Array;
    points->reserve(static_cast<unsigned>(sites.size()));
    for (const std::uint32_t site : sites)
        points->push_back(content.records.sites[site].foot - origin +
                          osg::Vec3d(0, 0, content.designOf(site).heightM / 2));
    return makeDots(points, content.dotPadM(), content.dotState);
}

/// Whole pylons.
///
/// @param markSpacingM  adds marks for pylons beyond their symbolic distance, because a wide tile
///                      may have such pylons while others are near; nothing: none
osg::ref_ptr<osg::Node> makePylons(Content &content, const Sites &sites, const osg::Vec3d &origin,
                                   const std::optional<double> &markSpacingM)
{
    const std::lock_guard lock(content.guard);
    if (!content.takeBudget(sites))
        return makeCoarse(content, sites, origin);
    osg::ref_ptr<osg::Group> group = new osg::Group;
    for (const std::uint32_t site : sites) {
        const SiteRecord &record = content.records.sites[site];
        const osg::ref_ptr<osg::Node> pylon =
            content.factory.build({record.foot - origin, content.designOf(site), record.northDeg});
        pylon->setName(record.name);
        if (content.isPickable)
            pylon->setUserValue(contract::objects::Number, site);
        group->addChild(pylon);
        if (!markSpacingM)
            continue;
        const PylonDesign &design = content.designOf(site);
        const osg::Vec3d middle = record.foot + osg::Vec3d(0, 0, design.heightM / 2);
        osg::ref_ptr<osg::LOD> beyond = new osg::LOD;
        beyond->setCenterMode(osg::LOD::USER_DEFINED_CENTER);
        beyond->setCenter(osg::Vec3());
        beyond->addChild(makeMarks(content, {site}, {*markSpacingM}, middle),
                         static_cast<float>(design.symbolicDistanceM), Endless);
        group->addChild(moved(beyond, middle - origin));
    }
    return group;
}

/// Builds the nodes of the tree's branches.
class SceneBuilder
{
public:
    explicit SceneBuilder(const ContentPtr &content) : m_content(content)
    {
        for (const PylonDesign &design : content->records.designs) {
            m_top = std::max(m_top, topOf(design));
            m_symbolicM = design.symbolicDistanceM; // the same for all designs
            m_realisticM = design.realisticDistanceM;
            m_sectorM = design.sectorRadiusM; // and this
            m_reach = std::max({m_reach, design.sectorRadiusM, design.heightM + RodM});
        }
    }

    /// The node of a branch. If it has few enough sites for one drawable, it is drawn as dots
    /// beyond the symbolic distance.
    osg::ref_ptr<osg::Node> branch(const SiteTree &tree, bool isInBlock)
    {
        const bool isBlock = !isInBlock && tree.siteCount <= SitesPerBlock;
        osg::ref_ptr<osg::Node> inner;
        if (tree.isLeaf())
            inner = tile(tree);
        else {
            osg::ref_ptr<osg::Group> halves = new osg::Group;
            halves->addChild(branch(*tree.low, isInBlock || isBlock));
            halves->addChild(branch(*tree.high, isInBlock || isBlock));
            inner = halves;
        }
        if (!isBlock || tree.isLeaf())
            return inner;
        const osg::BoundingSphere bound = boundOf(tree);
        const float far = static_cast<float>(m_symbolicM) + bound.radius();
        osg::ref_ptr<osg::LOD> block = levels(bound);
        block->addChild(inner, 0, far);
        block->addChild(marks(tree, bound), far, Endless);
        return block;
    }

    void addNames(const SiteTree &tree, std::vector<NamedPlace> &names) const
    {
        for (const std::uint32_t site : tree.sites) {
            const SiteRecord &record = m_content->records.sites[site];
            if (record.name.empty())
                continue;
            const PylonDesign &design = m_content->designOf(site);
            const std::vector<Sector> sectors = symbolSectors(design);
            const double sectorsM =
                sectors.empty() ? 0 : sectors.back().bottomM + sectors.back().heightM;
            names.push_back({record.name, record.foot,
                             sectors.empty() ? NamedPlace::Kind::Mast : NamedPlace::Kind::Sectors,
                             design.heightM + RodM, sectorsM, spacingOf(tree)});
        }
        if (!tree.isLeaf()) {
            addNames(*tree.low, names);
            addNames(*tree.high, names);
        }
    }

    SiteMeasures measures() const { return {m_sectorM, m_symbolicM, m_realisticM}; }

private:
    osg::BoundingSphere boundOf(const SiteTree &tree) const
    {
        const osg::Vec3d least = tree.feet._min;
        const osg::Vec3d most = tree.feet._max + osg::Vec3d(0, 0, m_top + LabelGapM);
        const double radius = (most - least).length() / 2 + m_reach;
        return {(least + most) / 2, static_cast<float>(radius)};
    }

    static osg::ref_ptr<osg::LOD> levels(const osg::BoundingSphere &bound)
    {
        osg::ref_ptr<osg::LOD> lod = new osg::LOD;
        lod->setCenterMode(osg::LOD::USER_DEFINED_CENTER);
        lod->setCenter(bound.center());
        lod->setRadius(bound.radius());
        return lod;
    }

    void addSites(const SiteTree &tree, Sites &sites, std::vector<double> &spacings) const
    {
        sites.insert(sites.end(), tree.sites.begin(), tree.sites.end());
        spacings.insert(spacings.end(), tree.sites.size(), spacingOf(tree));
        if (!tree.isLeaf()) {
            addSites(*tree.low, sites, spacings);
            addSites(*tree.high, sites, spacings);
        }
    }

    osg::ref_ptr<osg::Node> marks(const SiteTree &tree, const osg::BoundingSphere &bound) const
    {
        Sites sites;
        std::vector<double> spacings;
        addSites(tree, sites, spacings);
        const osg::Vec3d origin = bound.center();
        if (!m_content->hasSymbols)
            return moved(makeMarks(*m_content, sites, spacings, origin), origin);
        const auto make = [content = m_content, sites, spacings, origin] {
            return osg::ref_ptr<osg::Node>(makeMarks(*content, sites, spacings, origin));
        };
        const osg::BoundingSphere inner(osg::Vec3(), bound.radius());
        return moved(new DeferredNode(make, inner), origin);
    }

    /// The node of a leaf: its three representations and its names.
    osg::ref_ptr<osg::Node> tile(const SiteTree &tree) const
    {
        const osg::BoundingSphere bound = boundOf(tree);
        const osg::Vec3d origin = bound.center();
        const osg::BoundingSphere inner(osg::Vec3(), bound.radius());
        const ContentPtr content = m_content;
        const Sites sites = tree.sites;
        const auto part = [&](bool isAtOnce, const DeferredNode::Maker &maker) {
            const osg::ref_ptr<osg::Node> made =
                isAtOnce ? maker() : osg::ref_ptr<osg::Node>(new DeferredNode(maker, inner));
            return moved(made, origin);
        };
        const bool isWhole = content->isWholeAtOnce;

        const float radius = bound.radius();
        const float far = static_cast<float>(m_symbolicM) + radius;
        const float near = std::min(far, static_cast<float>(m_realisticM) + radius);
        osg::ref_ptr<osg::LOD> lod = levels(bound);
        std::optional<double> markSpacingM;
        if (near + radius > m_symbolicM)
            markSpacingM = spacingOf(tree);
        lod->addChild(
            part(isWhole, [=] { return makePylons(*content, sites, origin, markSpacingM); }), 0,
            near);
        lod->addChild(
            part(content->isCoarseAtOnce, [=] { return makeCoarse(*content, sites, origin); }),
            near, far);
        const osg::ref_ptr<osg::Node> beyond = marks(tree, bound);
        lod->addChild(beyond, far, Endless);
        if (content->hasSymbols && m_sectorM < SmallSectorShare * m_symbolicM)
            lod->addChild(SiteSymbols::whereSectorsAreSmall(beyond), 0, far);

        if (content->hasSymbols)
            return lod;
        const double labelM = labelDistance(tree);
        lod->addChild(part(isWhole, [=] { return makeLabels(*content, sites, origin, labelM); }), 0,
                      static_cast<float>(labelM) + radius);
        return lod;
    }

    /// Mean distance between the sites of a leaf.
    double spacingOf(const SiteTree &tree) const
    {
        if (tree.siteCount == 1)
            return Endless;
        const double width = tree.feet.xMax() - tree.feet.xMin();
        const double depth = tree.feet.yMax() - tree.feet.yMin();
        const auto count = static_cast<double>(tree.siteCount);
        return std::max(std::sqrt(width * depth / count), (width + depth) / count);
    }

    double labelDistance(const SiteTree &tree) const
    {
        return std::min(LabelRoom * spacingOf(tree), m_symbolicM);
    }

    ContentPtr m_content;
    double m_top = 0;
    double m_reach = 0;
    double m_symbolicM = 0;
    double m_realisticM = 0;
    double m_sectorM = 0;
};

} // namespace

double mastTopM(const PylonDesign &design)
{
    return design.heightM + RodM;
}

osg::ref_ptr<osg::Node> buildPylonTiles(PylonRecords records, TileContent content,
                                        std::vector<NamedPlace> links)
{
    const auto shared = std::make_shared<Content>(std::move(records), content);
    const std::unique_ptr<SiteTree> tree = growSiteTree(shared->records.sites, SitesPerTile);
    SceneBuilder builder(shared);
    const osg::ref_ptr<osg::Node> all = builder.branch(*tree, false);
    if (!shared->hasSymbols)
        return all;
    osg::ref_ptr<osg::Group> top = new osg::Group;
    SiteSymbols::prepare(*top, shared->records.designs.front().sectorRadiusM);
    top->addChild(all);
    builder.addNames(*tree, links);
    if (!links.empty())
        top->addChild(new NameOverlay(std::move(links), builder.measures()));
    return top;
}

} // namespace vlt::scene
