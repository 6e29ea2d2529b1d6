#pragma once

#include "geodata/LayerProblems.h"

#include <QObject>

#include <atomic>
#include <memory>
#include <thread>

namespace vlt::sites {

/// Reads every row of a table on a thread of its own and tells of the problems found. One check at
/// a time; a new one ends the one before.
class SiteCheckRunner : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~SiteCheckRunner() override;

    /// @param connection  table connection with an absolute path
    void start(const QString &connection);

    /// Ends a running check without a result.
    void cancel();

Q_SIGNALS:
    /// Share of the rows that were read, 0..1.
    void progressed(double share);
    void finished(const vlt::geodata::SiteCheck &check);
    /// The table could not be read to its end.
    void failed(const QString &reason);

private:
    std::thread m_thread;
    std::shared_ptr<std::atomic<bool>> m_cancelled;
};

} // namespace vlt::sites
