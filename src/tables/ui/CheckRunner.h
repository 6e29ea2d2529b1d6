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

/// Reads the rows of a table on a thread of its own. One check at a time: a new one stops the one
/// before and begins when that has stopped; of several that wait only the last is done.
class CheckRunner : public QObject
{
    Q_OBJECT

public:
    /// Work of the thread. It gives what is to be done with its outcome on the runner's thread.
    using Work = std::function<std::function<void()>(const Progress &)>;

    using QObject::QObject;
    ~CheckRunner() override;

    void start(Work work);

    /// Stops the check, without an outcome.
    void cancel();

    /// The work that reads a value and hands it, or the failure, on.
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
    void ended(const std::function<void()> &tell);

    std::thread m_thread;
    std::shared_ptr<std::atomic<bool>> m_cancelled; ///< of the check that runs; null for none
    Work m_next;
};

} // namespace vlt::tables
