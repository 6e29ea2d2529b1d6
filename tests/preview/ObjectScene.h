#pragma once

#include "contract/SceneObjects.h"

#include <osg/Array>
#include <osg/Group>
#include <osg/UserDataContainer>
#include <osg/ValueObject>

#include <string>
#include <vector>

/// Adds an array to the user data of a node.
template<typename Array, typename Values>
void addArray(osg::Node &node, const char *name, const Values &values)
{
    osg::ref_ptr<Array> array = new Array(values.begin(), values.end());
    array->setName(name);
    node.getOrCreateUserDataContainer()->addUserObject(array);
}

/// A scene that states objects in rows 10, 11 ..., with the names "Name 0", "Name 1" ...
inline osg::ref_ptr<osg::Group> sceneOf(const std::string &kind,
                                        const std::vector<osg::Vec3> &places,
                                        const std::vector<float> &sizes)
{
    namespace keys = vlt::contract::objects;
    osg::ref_ptr<osg::Group> scene = new osg::Group;
    std::vector<unsigned> rows;
    std::string names;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        rows.push_back(static_cast<unsigned>(10 + i));
        names += "Name " + std::to_string(i) + '\n';
    }
    scene->setUserValue(keys::Kind, kind);
    scene->setUserValue(keys::Names, names);
    addArray<osg::Vec3Array>(*scene, keys::Places, places);
    addArray<osg::FloatArray>(*scene, keys::Sizes, sizes);
    addArray<osg::UIntArray>(*scene, keys::Rows, rows);
    return scene;
}
