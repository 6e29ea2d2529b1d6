#include "landscape/scene/GroundNode.h"

#include "landscape/scene/Colors.h"

#include <osg/BlendFunc>
#include <osg/CullFace>
#include <osg/Depth>
#include <osg/Geometry>
#include <osg/Group>
#include <osg/PolygonOffset>
#include <osg/Texture2D>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace vlt::landscape {

namespace {

constexpr int TileCells = 20;    ///< in a row of a tile, which is drawn or left out as a whole
constexpr int BehindScene = -10; ///< render bin
constexpr Rgb GridLines = {128, 138, 146};
constexpr double GridOpacity = 0.55;

void setGroundState(osg::StateSet &state)
{
    state.setMode(GL_LIGHTING, osg::StateAttribute::OFF); // the colours include the shading
    state.setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
    // Lines and floors on the ground have to stay visible.
    state.setAttributeAndModes(new osg::PolygonOffset(1, 2));
    state.setRenderBinDetails(BehindScene, "RenderBin");
}

osg::ref_ptr<osg::Texture2D> makeTexture(int sidePx, const std::vector<unsigned char> &rgb)
{
    const osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(sidePx, sidePx, 1, GL_RGB, GL_UNSIGNED_BYTE);
    std::memcpy(image->data(), rgb.data(), rgb.size());
    osg::ref_ptr<osg::Texture2D> texture = new osg::Texture2D(image);
    texture->setFilter(osg::Texture::MIN_FILTER, osg::Texture::LINEAR_MIPMAP_LINEAR);
    texture->setFilter(osg::Texture::MAG_FILTER, osg::Texture::LINEAR);
    texture->setWrap(osg::Texture::WRAP_S, osg::Texture::CLAMP_TO_EDGE);
    texture->setWrap(osg::Texture::WRAP_T, osg::Texture::CLAMP_TO_EDGE);
    return texture;
}

osg::ref_ptr<osg::Geometry> makeTile(const Lattice &mesh, int firstColumn, int firstRow)
{
    const osg::ref_ptr<osg::Vec3Array> corners = new osg::Vec3Array;
    const osg::ref_ptr<osg::Vec2Array> inPicture = new osg::Vec2Array;
    for (int row = firstRow; row <= firstRow + TileCells; ++row) {
        for (int column = firstColumn; column <= firstColumn + TileCells; ++column) {
            const Place at = mesh.at(column, row);
            corners->push_back(
                osg::Vec3d(at.x, at.y, double{mesh.heightM[mesh.index(column, row)]}));
            inPicture->push_back(
                osg::Vec2(static_cast<float>(column) / static_cast<float>(mesh.cells),
                          static_cast<float>(row) / static_cast<float>(mesh.cells)));
        }
    }
    const osg::ref_ptr<osg::DrawElementsUShort> triangles =
        new osg::DrawElementsUShort(GL_TRIANGLES);
    constexpr int Points = TileCells + 1;
    for (int row = 0; row < TileCells; ++row) {
        for (int column = 0; column < TileCells; ++column) {
            const int corner = row * Points + column;
            for (const int other : {0, 1, Points + 1, 0, Points + 1, Points})
                triangles->push_back(static_cast<GLushort>(corner + other));
        }
    }
    osg::ref_ptr<osg::Geometry> tile = new osg::Geometry;
    tile->setUseDisplayList(false);
    tile->setUseVertexBufferObjects(true);
    tile->setVertexArray(corners);
    tile->setTexCoordArray(0, inPicture);
    const osg::ref_ptr<osg::Vec4Array> white = new osg::Vec4Array(osg::Array::BIND_OVERALL);
    white->push_back(osg::Vec4(1, 1, 1, 1));
    tile->setColorArray(white);
    tile->addPrimitiveSet(triangles);
    return tile;
}

bool isInHole(int column, int row)
{
    constexpr int First = (MeshCells - HoleCells) / 2;
    const auto isIn = [](int cell) { return cell >= First && cell < First + HoleCells; };
    return isIn(column) && isIn(row);
}

/// A step of the grid: 1, 2 or 5 times a power of ten.
double gridStepM(double aboutM)
{
    const double power = std::pow(10, std::floor(std::log10(aboutM)));
    const double share = aboutM / power;
    return power * (share < 2 ? 1 : share < 5 ? 2 : 5);
}

/// A tile of the grid with a line at each edge and four fainter ones between.
osg::ref_ptr<osg::Texture2D> makeGridTexture()
{
    constexpr int SidePx = 512;
    constexpr int LinePx = SidePx / 5;
    const osg::ref_ptr<osg::Image> image = new osg::Image;
    image->allocateImage(SidePx, SidePx, 1, GL_RGBA, GL_UNSIGNED_BYTE);
    const auto strength = [](int at) {
        if (at < 3 || at >= SidePx - 2)
            return 235;
        const int within = at % LinePx;
        return at < 5 * LinePx && (within < 2) ? 120 : 0;
    };
    for (int row = 0; row < SidePx; ++row) {
        for (int column = 0; column < SidePx; ++column) {
            unsigned char *pixel = image->data(column, row);
            std::fill(pixel, pixel + 3, static_cast<unsigned char>(255));
            pixel[3] = static_cast<unsigned char>(std::max(strength(column), strength(row)));
        }
    }
    osg::ref_ptr<osg::Texture2D> texture = new osg::Texture2D(image);
    texture->setFilter(osg::Texture::MIN_FILTER, osg::Texture::LINEAR_MIPMAP_LINEAR);
    texture->setFilter(osg::Texture::MAG_FILTER, osg::Texture::LINEAR);
    texture->setMaxAnisotropy(8);
    texture->setWrap(osg::Texture::WRAP_S, osg::Texture::REPEAT);
    texture->setWrap(osg::Texture::WRAP_T, osg::Texture::REPEAT);
    return texture;
}

/// A disc whose corners have the colours of `colorAt(share of the radius)`.
template<typename ColorAt>
osg::ref_ptr<osg::Geometry> makeDisc(const Square &finest, double heightM, const ColorAt &colorAt)
{
    constexpr int Rings = 24;
    constexpr int Sectors = 72;
    const double radiusM = outerHalfM(finest);
    const osg::ref_ptr<osg::Vec3Array> corners = new osg::Vec3Array;
    const osg::ref_ptr<osg::Vec4Array> colors = new osg::Vec4Array(osg::Array::BIND_PER_VERTEX);
    const osg::ref_ptr<osg::DrawElementsUShort> triangles =
        new osg::DrawElementsUShort(GL_TRIANGLES);
    for (int ring = 0; ring <= Rings; ++ring) {
        const double share = std::pow(static_cast<double>(ring) / Rings, 2); // finer in the middle
        for (int sector = 0; sector <= Sectors; ++sector) {
            const double turn = 2 * osg::PI * sector / Sectors;
            corners->push_back(osg::Vec3d(finest.centre.x + share * radiusM * std::cos(turn),
                                          finest.centre.y + share * radiusM * std::sin(turn),
                                          heightM));
            colors->push_back(colorAt(share));
            if (ring == Rings || sector == Sectors)
                continue;
            const int corner = ring * (Sectors + 1) + sector;
            for (const int other : {0, Sectors + 1, Sectors + 2, 0, Sectors + 2, 1})
                triangles->push_back(static_cast<GLushort>(corner + other));
        }
    }
    osg::ref_ptr<osg::Geometry> disc = new osg::Geometry;
    disc->setUseDisplayList(false);
    disc->setUseVertexBufferObjects(true);
    disc->setVertexArray(corners);
    disc->setColorArray(colors);
    disc->addPrimitiveSet(triangles);
    return disc;
}

double fogAt(double share)
{
    const double fog = std::clamp(2 * share - 1, 0.0, 1.0);
    return fog * fog * (3 - 2 * fog);
}

} // namespace

osg::ref_ptr<osg::Node> makeGroundNode(const std::vector<GroundLevel> &levels)
{
    osg::ref_ptr<osg::Group> ground = new osg::Group;
    ground->setName("ground");
    setGroundState(*ground->getOrCreateStateSet());
    for (std::size_t level = 0; level < levels.size(); ++level) {
        const osg::ref_ptr<osg::Group> tiles = new osg::Group;
        tiles->getOrCreateStateSet()->setTextureAttributeAndModes(
            0, makeTexture(levels[level].picturePx, levels[level].picture));
        for (int row = 0; row < MeshCells; row += TileCells) {
            for (int column = 0; column < MeshCells; column += TileCells) {
                if (level == 0 || !isInHole(column, row))
                    tiles->addChild(makeTile(levels[level].mesh, column, row));
            }
        }
        ground->addChild(tiles);
    }
    return ground;
}

osg::ref_ptr<osg::Node> makeUpload(const osg::Node &level)
{
    osg::ref_ptr<osg::Geometry> corner = new osg::Geometry; // a triangle without an area
    corner->setUseDisplayList(false);
    corner->setVertexArray(new osg::Vec3Array(3));
    const osg::Vec3 centre = level.getBound().center(); // does not change the near plane
    for (osg::Vec3 &at : static_cast<osg::Vec3Array &>(*corner->getVertexArray()))
        at = centre;
    corner->addPrimitiveSet(new osg::DrawArrays(GL_TRIANGLES, 0, 3));
    corner->setCullingActive(false);
    if (level.getStateSet())
        corner->setStateSet(new osg::StateSet(*level.getStateSet()));
    return corner;
}

osg::ref_ptr<osg::Node> makePlaneNode(const Square &finest, double heightM)
{
    osg::ref_ptr<osg::Group> ground = new osg::Group;
    ground->setName("ground");
    setGroundState(*ground->getOrCreateStateSet());
    ground->addChild(makeDisc(finest, heightM, [](double share) {
        osg::Vec4 color = colorOf(PlainGround) * static_cast<float>(1 - fogAt(share)) +
                          colorOf(Haze) * static_cast<float>(fogAt(share));
        color.a() = 1;
        return color;
    }));
    const osg::ref_ptr<osg::Geometry> grid = makeDisc(finest, heightM, [](double share) {
        return colorOf(GridLines, GridOpacity * (1 - fogAt(share * 1.3)));
    });
    const double stepM = gridStepM(finest.halfM / 2);
    const osg::ref_ptr<osg::Vec2Array> inTexture = new osg::Vec2Array;
    for (const osg::Vec3 &corner : static_cast<osg::Vec3Array &>(*grid->getVertexArray()))
        inTexture->push_back(osg::Vec2(corner.x(), corner.y()) / static_cast<float>(stepM));
    grid->setTexCoordArray(0, inTexture);
    osg::StateSet *state = grid->getOrCreateStateSet();
    state->setTextureAttributeAndModes(0, makeGridTexture());
    state->setAttributeAndModes(new osg::BlendFunc);
    state->setAttributeAndModes(new osg::Depth(osg::Depth::LEQUAL, 0, 1, false));
    state->setRenderBinDetails(1, "RenderBin"); // within that of the ground
    ground->addChild(grid);
    return ground;
}

} // namespace vlt::landscape
