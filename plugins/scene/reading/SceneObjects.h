#pragma once

#include <osg/Array>
#include <osg/Group>

#include <string>
#include <string_view>

namespace vlt::scene {

/// The objects of a scene, see contract/SceneObjects.h; arrays may be null.
struct SceneObjects
{
    osg::ref_ptr<osg::Vec3Array> places = new osg::Vec3Array;
    osg::ref_ptr<osg::FloatArray> sizes = new osg::FloatArray;
    osg::ref_ptr<osg::UIntArray> rows = new osg::UIntArray;
    osg::ref_ptr<osg::FloatArray> values;
    osg::ref_ptr<osg::Vec4ubArray> wallColors;
    osg::ref_ptr<osg::Vec4ubArray> roofColors;
    std::string names;

    void reserve(std::size_t objects);

    /// Adds a line to the names; line feeds in it become blanks.
    void addName(std::string_view name);

    /// Adds the objects to the root of a scene.
    ///
    /// @param kind  a text of contract/SceneObjects.h
    void addTo(osg::Group &scene, const std::string &kind) const;
};

} // namespace vlt::scene
