#include "preview/Surroundings.h"

#include "landscape/scene/GroundNode.h"
#include "landscape/scene/Light.h"
#include "landscape/scene/Sky.h"

#include <chrono>
#include <utility>

using vlt::landscape::Detail;

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
    if (m_coming && m_uploaded > 0)
        m_group->removeChild(m_group->getNumChildren() - 1);
    m_coming = nullptr;
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
    if (!m_maker || isBusy())
        return false;
    const double distanceM = (eye - target).length();
    return m_madeBy != m_maker || m_detail == Detail::Rough || distanceM > MaxZoom * m_madeFromM ||
           distanceM < m_madeFromM / MaxZoom || (target - m_madeFor).length() > MaxMove * distanceM;
}

/// Starts a job: the first one for a scene makes a rough ground.
void Surroundings::start(const osg::Vec3d &eye, const osg::Vec3d &target)
{
    m_detail = m_madeBy != m_maker ? Detail::Rough : Detail::Full;
    m_madeBy = m_maker;
    m_madeFor = target;
    m_madeFromM = (eye - target).length();
    m_job = std::async(std::launch::async, [maker = m_maker, eye, target, detail = m_detail] {
        return (*maker)(eye, target, detail);
    });
}

/// Hands one level of the finished ground to the renderer, or shows it after the last one: all at
/// once would hold up a frame.
bool Surroundings::takeLevel()
{
    if (m_uploaded > 0)
        m_group->removeChild(m_group->getNumChildren() - 1); // what handed the level before over
    if (m_uploaded < m_coming->getNumChildren()) {
        m_group->addChild(vlt::landscape::makeUpload(*m_coming->getChild(m_uploaded)));
        ++m_uploaded;
        return true;
    }
    m_group->removeChild(m_ground);
    m_ground = m_coming;
    m_coming = nullptr;
    m_group->addChild(m_ground);
    return true;
}

bool Surroundings::update(const osg::Vec3d &eye, const osg::Vec3d &target)
{
    if (m_coming)
        return takeLevel();
    if (isDue(eye, target))
        start(eye, target);
    if (!m_job.valid() || m_job.wait_for(std::chrono::seconds(0)) != std::future_status::ready)
        return false;
    const osg::ref_ptr<osg::Node> made = m_job.get();
    if (m_madeBy != m_maker || !made) // another scene is shown by now
        return false;
    m_coming = made->asGroup();
    if (!m_coming) {
        m_coming = new osg::Group;
        m_coming->addChild(made);
    }
    m_uploaded = 0;
    return true;
}
