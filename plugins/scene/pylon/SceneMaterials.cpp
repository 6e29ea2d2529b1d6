#include "plugins/scene/pylon/SceneMaterials.h"

#include <osg/BlendFunc>
#include <osg/CullFace>
#include <osg/Depth>
#include <osg/LineWidth>
#include <osg/Material>
#include <osg/PolygonOffset>

namespace vlt::scene {

namespace {

osg::ref_ptr<osg::StateSet> lit(float shine, float shininess)
{
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    osg::ref_ptr<osg::Material> material = new osg::Material;
    material->setColorMode(osg::Material::AMBIENT_AND_DIFFUSE);
    material->setAmbient(osg::Material::FRONT_AND_BACK, osg::Vec4(1, 1, 1, 1));
    material->setDiffuse(osg::Material::FRONT_AND_BACK, osg::Vec4(1, 1, 1, 1));
    material->setSpecular(osg::Material::FRONT_AND_BACK, osg::Vec4(shine, shine, shine, 1));
    material->setShininess(osg::Material::FRONT_AND_BACK, shininess);
    state->setAttributeAndModes(material);
    state->setAttributeAndModes(new osg::CullFace(osg::CullFace::BACK));
    return state;
}

/// The state of a sector: without lighting, and slightly behind its edges, which are in the same
/// planes.
osg::ref_ptr<osg::StateSet> sector()
{
    osg::ref_ptr<osg::StateSet> state = new osg::StateSet;
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setAttributeAndModes(new osg::CullFace(osg::CullFace::BACK));
    state->setAttributeAndModes(new osg::PolygonOffset(1, 1));
    return state;
}

} // namespace

SceneMaterials::SceneMaterials()
    : metal(lit(0.28F, 24))
    , matt(lit(0.04F, 8))
    , opaqueSector(sector())
    , translucentSector(sector())
    , sectorEdges(new osg::StateSet)
{
    translucentSector->setAttributeAndModes(
        new osg::BlendFunc(osg::BlendFunc::SRC_ALPHA, osg::BlendFunc::ONE_MINUS_SRC_ALPHA));
    translucentSector->setAttributeAndModes(new osg::Depth(osg::Depth::LEQUAL, 0, 1, false));
    translucentSector->setRenderingHint(osg::StateSet::TRANSPARENT_BIN);
    sectorEdges->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    sectorEdges->setAttributeAndModes(new osg::LineWidth(1.5F));
}

} // namespace vlt::scene
