#pragma once

#include <QStringList>

#include <osg/Notify>
#include <osg/ref_ptr>

namespace vlt::snapshot {

/// Collects what the scene library and its readers tell, which otherwise goes to the standard
/// streams, as long as the object lives. One object at a time.
class SceneNotices
{
public:
    SceneNotices();
    ~SceneNotices();
    SceneNotices(const SceneNotices &) = delete;
    SceneNotices &operator=(const SceneNotices &) = delete;

    /// The lines told since the last call; debugging texts are left out.
    QStringList take();

private:
    class Collector;

    osg::ref_ptr<osg::NotifyHandler> m_former;
    osg::ref_ptr<Collector> m_collector;
};

} // namespace vlt::snapshot
