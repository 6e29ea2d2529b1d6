#pragma once

#include <QStringList>

#include <osg/Notify>
#include <osg/ref_ptr>

namespace vlt::snapshot {

/// Collects the messages of the scene library and its readers, as long as the object exists;
/// otherwise they go to the standard streams. Only one object may exist at a time.
class SceneNotices
{
public:
    SceneNotices();
    ~SceneNotices();
    SceneNotices(const SceneNotices &) = delete;
    SceneNotices &operator=(const SceneNotices &) = delete;

    /// The lines received since the last call, without debugging messages.
    QStringList take();

private:
    class Collector;

    osg::ref_ptr<osg::NotifyHandler> m_former;
    osg::ref_ptr<Collector> m_collector;
};

} // namespace vlt::snapshot
