#include "plugins/scene/mesh/Mesh.h"

#include <limits>

namespace vlt::scene {

namespace {

template<typename Elements>
osg::ref_ptr<Elements> elements(GLenum mode, const std::vector<unsigned> &indices)
{
    osg::ref_ptr<Elements> drawn = new Elements(mode);
    drawn->reserve(indices.size());
    for (const unsigned index : indices)
        drawn->push_back(static_cast<typename Elements::value_type>(index));
    return drawn;
}

} // namespace

unsigned Mesh::vertex(const osg::Vec3 &position, const osg::Vec3 &normal, const Color &color)
{
    m_positions.push_back(position);
    m_normals.push_back(normal);
    m_colors.push_back(color);
    return static_cast<unsigned>(m_positions.size() - 1);
}

void Mesh::triangle(unsigned a, unsigned b, unsigned c)
{
    m_indices.insert(m_indices.end(), {a, b, c});
}

void Mesh::quad(unsigned a, unsigned b, unsigned c, unsigned d)
{
    m_indices.insert(m_indices.end(), {a, b, c, a, c, d});
}

void Mesh::line(unsigned a, unsigned b)
{
    m_indices.insert(m_indices.end(), {a, b});
}

void Mesh::append(const Mesh &other, const osg::Matrixd &placing)
{
    const auto base = static_cast<unsigned>(m_positions.size());
    for (std::size_t i = 0; i < other.m_positions.size(); ++i) {
        const osg::Vec3d normal =
            osg::Matrixd::transform3x3(osg::Vec3d(other.m_normals[i]), placing);
        vertex(osg::Vec3d(other.m_positions[i]) * placing, normal, other.m_colors[i]);
    }
    for (const unsigned index : other.m_indices)
        m_indices.push_back(base + index);
}

void Mesh::fill(osg::Geometry &geometry) const
{
    const auto size = static_cast<unsigned>(m_positions.size());
    geometry.setUseDisplayList(false);
    geometry.setUseVertexBufferObjects(true);
    geometry.setVertexArray(new osg::Vec3Array(size, m_positions.data()));
    if (m_kind == Kind::Solid)
        geometry.setNormalArray(new osg::Vec3Array(size, m_normals.data()),
                                osg::Array::BIND_PER_VERTEX);
    osg::ref_ptr<osg::Vec4ubArray> colors = new osg::Vec4ubArray(size, m_colors.data());
    colors->setNormalize(true);
    geometry.setColorArray(colors, osg::Array::BIND_PER_VERTEX);
    const GLenum mode = m_kind == Kind::Solid ? GL_TRIANGLES : GL_LINES;
    if (size <= std::numeric_limits<GLushort>::max())
        geometry.addPrimitiveSet(elements<osg::DrawElementsUShort>(mode, m_indices));
    else
        geometry.addPrimitiveSet(elements<osg::DrawElementsUInt>(mode, m_indices));
}

} // namespace vlt::scene
