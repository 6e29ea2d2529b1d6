#include "plugins/scene/reading/SceneObjects.h"

#include "contract/SceneObjects.h"

#include <osg/UserDataContainer>
#include <osg/ValueObject>

#include <algorithm>

namespace vlt::scene {

namespace objects = contract::objects;

void SceneObjects::reserve(std::size_t count)
{
    const auto size = static_cast<unsigned>(count);
    places->reserve(size);
    sizes->reserve(size);
    rows->reserve(size);
}

void SceneObjects::addName(std::string_view name)
{
    const std::size_t begin = names.size();
    names += name;
    std::replace(names.begin() + static_cast<std::ptrdiff_t>(begin), names.end(), '\n', ' ');
    names += '\n';
}

void SceneObjects::addTo(osg::Group &scene, const std::string &kind) const
{
    osg::UserDataContainer &data = *scene.getOrCreateUserDataContainer();
    const auto add = [&data](const char *name, osg::Array *array) {
        if (!array)
            return;
        array->setName(name);
        data.addUserObject(array);
    };
    add(objects::Places, places);
    add(objects::Sizes, sizes);
    add(objects::Rows, rows);
    add(objects::Values, values);
    add(objects::WallColors, wallColors);
    add(objects::RoofColors, roofColors);
    scene.setUserValue(objects::Kind, kind);
    scene.setUserValue(objects::Names, names);
}

} // namespace vlt::scene
