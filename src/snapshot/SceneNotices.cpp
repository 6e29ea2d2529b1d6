#include "snapshot/SceneNotices.h"

#include <mutex>
#include <string>

namespace vlt::snapshot {

/// Receives the messages: a line may come in pieces, and readers may run on several threads.
class SceneNotices::Collector : public osg::NotifyHandler
{
public:
    void notify(osg::NotifySeverity severity, const char *message) override
    {
        const std::lock_guard lock(m_mutex);
        if (severity <= osg::NOTICE)
            m_text += message;
    }

    QStringList take()
    {
        const std::lock_guard lock(m_mutex);
        QStringList lines =
            QString::fromStdString(m_text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        m_text.clear();
        return lines;
    }

private:
    std::mutex m_mutex;
    std::string m_text;
};

SceneNotices::SceneNotices() : m_former(osg::getNotifyHandler()), m_collector(new Collector)
{
    osg::setNotifyHandler(m_collector);
}

SceneNotices::~SceneNotices()
{
    osg::setNotifyHandler(m_former);
}

QStringList SceneNotices::take()
{
    return m_collector->take();
}

} // namespace vlt::snapshot
