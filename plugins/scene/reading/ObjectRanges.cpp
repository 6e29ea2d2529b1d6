#include "plugins/scene/reading/ObjectRanges.h"

#include "contract/SceneObjects.h"

#include <osg/Array>
#include <osg/UserDataContainer>

namespace vlt::scene {

void ObjectRanges::begin(std::uint32_t object, std::size_t indices)
{
    constexpr std::size_t CornersOfTriangle = 3;
    const auto first = static_cast<std::uint32_t>(indices / CornersOfTriangle);
    const bool wasEmpty = m_pairs.size() >= 2 && m_pairs[m_pairs.size() - 2] == first;
    if (wasEmpty)
        m_pairs.resize(m_pairs.size() - 2);
    m_pairs.insert(m_pairs.end(), {first, object});
}

void ObjectRanges::addTo(osg::Drawable &drawable) const
{
    osg::ref_ptr<osg::UIntArray> ranges = new osg::UIntArray(m_pairs.begin(), m_pairs.end());
    ranges->setName(contract::objects::Ranges);
    drawable.getOrCreateUserDataContainer()->addUserObject(ranges);
}

} // namespace vlt::scene
