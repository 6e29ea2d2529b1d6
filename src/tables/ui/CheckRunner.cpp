#include "tables/ui/CheckRunner.h"

namespace vlt::tables {

CheckRunner::~CheckRunner()
{
    cancel();
    if (m_thread.joinable())
        m_thread.join();
}

void CheckRunner::start(Work work)
{
    cancel();
    if (m_cancelled)
        m_next = std::move(work);
    else
        run(work);
}

void CheckRunner::cancel()
{
    m_next = nullptr;
    if (m_cancelled)
        m_cancelled->store(true);
}

void CheckRunner::run(const Work &work)
{
    m_cancelled = std::make_shared<std::atomic<bool>>(false);
    m_thread = std::thread([this, work, cancelled = m_cancelled] {
        const auto post = [this](auto &&message) {
            QMetaObject::invokeMethod(this, message, Qt::QueuedConnection);
        };
        const auto outcome = work([&](double share) {
            post([this, cancelled, share] {
                if (!cancelled->load())
                    Q_EMIT progressed(share);
            });
            return !cancelled->load();
        });
        post([this, outcome] { finish(outcome); });
    });
}

void CheckRunner::finish(const std::function<void()> &report)
{
    m_thread.join();
    const bool isWanted = !m_cancelled->load();
    m_cancelled.reset();
    if (const Work next = std::exchange(m_next, nullptr))
        run(next);
    else if (isWanted)
        report();
}

} // namespace vlt::tables
