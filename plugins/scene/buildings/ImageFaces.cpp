#include "plugins/scene/buildings/ImageFaces.h"

#include <osg/Texture2D>

namespace vlt::scene {

namespace {

osg::ref_ptr<osg::Texture2D> textureOf(osg::Image &image, const contract::BuildingTextures &look)
{
    osg::ref_ptr<osg::Texture2D> texture = new osg::Texture2D(&image);
    texture->setResizeNonPowerOfTwoHint(false);
    texture->setWrap(osg::Texture::WRAP_S, osg::Texture::CLAMP_TO_EDGE);
    texture->setWrap(osg::Texture::WRAP_T, osg::Texture::CLAMP_TO_EDGE);
    texture->setFilter(osg::Texture::MIN_FILTER, osg::Texture::LINEAR_MIPMAP_LINEAR);
    texture->setFilter(osg::Texture::MAG_FILTER, look.magFilter == contract::MagFilter::Linear
                                                     ? osg::Texture::LINEAR
                                                     : osg::Texture::NEAREST);
    // Hardware without this compression ignores it.
    if (look.compression != contract::TextureCompression::None)
        texture->setInternalFormatMode(osg::Texture::USE_S3TC_DXT5_COMPRESSION);
    return texture;
}

} // namespace

std::uint32_t ImageFaces::vertex(const osg::Vec2d &position, double z, const osg::Vec3 &normal,
                                 const osg::Vec2d &looked, const osg::Vec4ub &color)
{
    m_vertices.emplace_back(static_cast<float>(position.x()), static_cast<float>(position.y()),
                            static_cast<float>(z));
    m_normals.push_back(normal);
    m_colors.push_back(color);
    m_looked.push_back(looked);
    return static_cast<std::uint32_t>(m_vertices.size() - 1);
}

void ImageFaces::addFloor(const RoofTriangles &roof, const std::vector<osg::Vec2d> &looked,
                          double z, const osg::Vec4ub &color)
{
    const auto first = static_cast<std::uint32_t>(m_vertices.size());
    for (std::size_t i = 0; i < roof.points().size(); ++i)
        vertex(roof.points()[i], z, osg::Z_AXIS, looked[i], color);
    for (const auto &[a, b, c] : roof.triangles())
        m_indices.insert(m_indices.end(), {first + a, first + b, first + c});
}

void ImageFaces::addWall(const Wall &wall, double bottom, double top, const osg::Vec4ub &color)
{
    const osg::Vec3 normal(osg::Vec3d(wall.normal.x(), wall.normal.y(), 0));
    const std::uint32_t a = vertex(wall.from, bottom, normal, wall.lookedFrom, color);
    vertex(wall.to, bottom, normal, wall.lookedTo, color);
    vertex(wall.to, top, normal, wall.lookedTo, color);
    vertex(wall.from, top, normal, wall.lookedFrom, color);
    m_indices.insert(m_indices.end(), {a, a + 1, a + 2, a, a + 2, a + 3});
}

osg::ref_ptr<osg::Geometry> ImageFaces::geometry(TextureImage &image,
                                                 const contract::BuildingTextures &textures,
                                                 const osg::StateSet &state, int maxSide) const
{
    std::vector<osg::Vec2d> pixels = m_looked;
    image.toPixels(pixels);
    const ImageCrop crop = image.crop(pixels, textures.dilatationPixels.value_or(0), maxSide);

    const auto size = static_cast<unsigned>(m_vertices.size());
    osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
    geometry->setUseDisplayList(false);
    geometry->setUseVertexBufferObjects(true);
    geometry->setVertexArray(new osg::Vec3Array(size, m_vertices.data()));
    geometry->setNormalArray(new osg::Vec3Array(size, m_normals.data()),
                             osg::Array::BIND_PER_VERTEX);
    osg::ref_ptr<osg::Vec4ubArray> colors = new osg::Vec4ubArray(size, m_colors.data());
    colors->setNormalize(true);
    geometry->setColorArray(colors, osg::Array::BIND_PER_VERTEX);
    osg::ref_ptr<osg::Vec2Array> coordinates = new osg::Vec2Array;
    coordinates->reserve(size);
    for (const osg::Vec2d &pixel : pixels)
        coordinates->push_back(crop.coordinates(pixel));
    geometry->setTexCoordArray(0, coordinates, osg::Array::BIND_PER_VERTEX);
    geometry->addPrimitiveSet(new osg::DrawElementsUInt(
        GL_TRIANGLES, static_cast<unsigned>(m_indices.size()), m_indices.data()));
    osg::ref_ptr<osg::StateSet> own = new osg::StateSet(state);
    own->setTextureAttributeAndModes(0, textureOf(*crop.image, textures));
    geometry->setStateSet(own);
    if (!m_ranges.isEmpty())
        m_ranges.addTo(*geometry);
    return geometry;
}

} // namespace vlt::scene
