#include "preview/Surroundings.h"

#include "landscape/scene/Light.h"
#include "landscape/scene/Sky.h"

#include <chrono>
#include <utility>

namespace {

/// The ground is made again if the eye is nearer or farther by this factor, or if it looks at a
/// point that is this share of its distance away.
constexpr double MaxZoom = 2.5;
constexpr double MaxMove = 0.4;
/// Distance of the near plane / that of the far one: the ground reaches far, the scene may be near.
constexpr double NearShare = 0.0002;

} // namespace

void Surroundings::show(GroundMaker maker)
{
    m_maker = maker ? std::make_shared<const GroundMaker>(std::move(maker)) : nullptr;
    if (m_maker && !m_group) {
        m_group = new osg::Group;
        m_group->setNodeMask(Mask);
        m_group->addChild(vlt::landscape::makeSky());
        m_group->addChild(vlt::landscape::makeLights(*m_camera.getOrCreateStateSet()));
        m_camera.setNearFarRatio(NearShare);
    }
    if (!m_maker && m_ground) {
        m_group->removeChild(m_ground);
        m_ground = nullptr;
    }
    attach();
}

void Surroundings::attach()
{
    if (!m_group)
        return;
    m_camera.removeChild(m_group);
    if (m_maker)
        m_camera.insertChild(0, m_group);
}

bool Surroundings::isDue(const osg::Vec3d &eye, const osg::Vec3d &target) const
{
    if (!m_maker || m_job.valid())
        return false;
    const double distanceM = (eye - target).length();
    return m_madeBy != m_maker || distanceM > MaxZoom * m_madeFromM ||
           distanceM < m_madeFromM / MaxZoom || (target - m_madeFor).length() > MaxMove * distanceM;
}

bool Surroundings::update(const osg::Vec3d &eye, const osg::Vec3d &target)
{
    if (isDue(eye, target)) {
        m_madeBy = m_maker;
        m_madeFor = target;
        m_madeFromM = (eye - target).length();
        m_job = std::async(std::launch::async,
                           [maker = m_maker, eye, target] { return (*maker)(eye, target); });
    }
    if (!m_job.valid() || m_job.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return false;
    const osg::ref_ptr<osg::Node> made = m_job.get();
    if (m_madeBy != m_maker || !made) // another scene is shown by now
        return false;
    if (m_ground)
        m_group->removeChild(m_ground);
    m_ground = made;
    m_group->addChild(m_ground);
    return true;
}
