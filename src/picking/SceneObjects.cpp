#include "picking/SceneObjects.h"

#include "contract/SceneObjects.h"

#include <osg/UserDataContainer>
#include <osg/ValueObject>

#include <algorithm>
#include <cmath>

namespace vlt::picking {

namespace objects = contract::objects;

namespace {

template<typename Array>
const Array *arrayOf(const osg::UserDataContainer &data, const char *name)
{
    return dynamic_cast<const Array *>(data.getUserObject(name));
}

std::optional<Kind> kindOf(const std::string &text)
{
    if (text == objects::Site)
        return Kind::Site;
    if (text == objects::Link)
        return Kind::Link;
    if (text == objects::Building)
        return Kind::Building;
    return std::nullopt;
}

} // namespace

std::optional<SceneObjects> SceneObjects::of(const osg::Node &scene)
{
    std::string kindText;
    std::string names;
    const osg::UserDataContainer *data = scene.getUserDataContainer();
    if (!data || !scene.getUserValue(objects::Kind, kindText))
        return std::nullopt;
    const std::optional<Kind> kind = kindOf(kindText);
    SceneObjects found;
    found.m_places = arrayOf<osg::Vec3Array>(*data, objects::Places);
    found.m_sizes = arrayOf<osg::FloatArray>(*data, objects::Sizes);
    found.m_rows = arrayOf<osg::UIntArray>(*data, objects::Rows);
    if (!kind || !found.m_places || !found.m_sizes || !found.m_rows)
        return std::nullopt;
    const std::size_t count = found.m_rows->size();
    const std::size_t placesOfEach = *kind == Kind::Link ? 2 : 1;
    if (found.m_sizes->size() != count || found.m_places->size() != placesOfEach * count)
        return std::nullopt;
    found.m_kind = *kind;
    found.m_values = arrayOf<osg::FloatArray>(*data, objects::Values);
    found.m_wallColors = arrayOf<osg::Vec4ubArray>(*data, objects::WallColors);
    found.m_roofColors = arrayOf<osg::Vec4ubArray>(*data, objects::RoofColors);
    scene.getUserValue(objects::Names, names);
    found.m_names = QString::fromStdString(names).split(QLatin1Char('\n'));
    found.m_names.resize(static_cast<qsizetype>(count));
    return found;
}

osg::Vec3d SceneObjects::place(std::size_t object, std::size_t end) const
{
    return (*m_places)[m_kind == Kind::Link ? 2 * object + end : object];
}

std::optional<double> SceneObjects::value(std::size_t object) const
{
    if (!m_values || object >= m_values->size() || std::isnan((*m_values)[object]))
        return std::nullopt;
    return (*m_values)[object];
}

osg::Vec4ub SceneObjects::wallColor(std::size_t object) const
{
    return m_wallColors && object < m_wallColors->size() ? (*m_wallColors)[object] : osg::Vec4ub();
}

osg::Vec4ub SceneObjects::roofColor(std::size_t object) const
{
    return m_roofColors && object < m_roofColors->size() ? (*m_roofColors)[object] : osg::Vec4ub();
}

std::optional<std::size_t> SceneObjects::ofRow(qint64 row) const
{
    const auto found = std::find(m_rows->begin(), m_rows->end(), row);
    if (found == m_rows->end())
        return std::nullopt;
    return static_cast<std::size_t>(found - m_rows->begin());
}

QList<std::size_t> SceneObjects::named(const QString &name) const
{
    for (const Qt::CaseSensitivity letters : {Qt::CaseSensitive, Qt::CaseInsensitive}) {
        QList<std::size_t> found;
        for (qsizetype i = 0; i < m_names.size(); ++i) {
            if (m_names[i].compare(name, letters) == 0)
                found << static_cast<std::size_t>(i);
        }
        if (!found.isEmpty())
            return found;
    }
    return {};
}

osg::BoundingBoxd SceneObjects::extent(std::size_t object) const
{
    constexpr double WidthShare = 0.4; // of a mast with its sectors to its height
    osg::BoundingBoxd box;
    box.expandBy(place(object));
    if (m_kind == Kind::Link) {
        box.expandBy(place(object, 1));
        const double half = sizeM(object);
        const osg::Vec3d middle = box.center();
        box.expandBy(middle + osg::Vec3d(half, half, half));
        box.expandBy(middle - osg::Vec3d(half, half, half));
        return box;
    }
    const double aside = WidthShare / 2 * sizeM(object);
    const double upM = m_kind == Kind::Site ? sizeM(object) : -sizeM(object);
    box.expandBy(place(object) + osg::Vec3d(aside, aside, upM));
    box.expandBy(place(object) - osg::Vec3d(aside, aside, 0));
    return box;
}

} // namespace vlt::picking
