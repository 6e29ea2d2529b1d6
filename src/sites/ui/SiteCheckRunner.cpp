#include "sites/ui/SiteCheckRunner.h"

namespace vlt::sites {

SiteCheckRunner::~SiteCheckRunner()
{
    cancel();
}

void SiteCheckRunner::start(const QString &connection)
{
    cancel();
    const auto cancelled = std::make_shared<std::atomic<bool>>(false);
    m_cancelled = cancelled;
    // what arrives after a cancel belongs to an older table
    const auto tell = [this, cancelled](auto &&message) {
        QMetaObject::invokeMethod(
            this, [cancelled, message] { cancelled->load() ? void() : message(); },
            Qt::QueuedConnection);
    };
    m_thread = std::thread([this, connection, cancelled, tell] {
        const auto check = geodata::readSiteCheck(connection, [&](double share) {
            tell([this, share] { Q_EMIT progressed(share); });
            return !cancelled->load();
        });
        if (check)
            tell([this, found = check.value()] { Q_EMIT finished(found); });
        else
            tell([this, reason = check.error().text] { Q_EMIT failed(reason); });
    });
}

void SiteCheckRunner::cancel()
{
    if (m_cancelled)
        m_cancelled->store(true);
    if (m_thread.joinable())
        m_thread.join();
}

} // namespace vlt::sites
