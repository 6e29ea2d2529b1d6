#pragma once

#include "geodata/LayerPlacement.h"
#include "platform/Result.h"

#include <QObject>

#include <atomic>
#include <functional>
#include <memory>
#include <thread>
#include <utility>

namespace vlt::tables {

/// Reads the rows of a table on a thread of its own. Only one check runs at a time: a new check
/// stops the running one and starts after it. If several checks wait, only the last one is done.
class CheckRunner : public QObject
{
    Q_OBJECT

public:
    /// The work of the thread. It returns a function that handles the result and is called on the
    /// runner's thread.
    using Work = std::function<std::function<void()>(const Progress &)>;

    using QObject::QObject;
    ~CheckRunner() override;

    void start(Work work);

    /// Stops the check; there is no result then.
    void cancel();

    /// Work that reads a value and calls `finished` with it, or `failed` with the error.
    template<typename T>
    static Work reading(std::function<Stoppable<T>(const Progress &)> read,
                        std::function<void(const T &)> finished,
                        const std::function<void(const Error &)> &failed)
    {
        return [=](const Progress &progress) -> std::function<void()> {
            auto outcome = std::make_shared<Stoppable<T>>(read(progress));
            return [=] {
                if (*outcome)
                    (*outcome)->ok() ? finished((*outcome)->value()) : failed((*outcome)->error());
            };
        };
    }

Q_SIGNALS:
    /// Share of the rows that were read, 0..1.
    void progressed(double share);

private:
    void run(const Work &work);
    void finish(const std::function<void()> &report);

    std::thread m_thread;
    std::shared_ptr<std::atomic<bool>> m_cancelled; ///< of the running check; null for none
    Work m_next;
};

} // namespace vlt::tables
