#pragma once

#include "contract/Progress.h"

#include <QElapsedTimer>
#include <QString>

namespace vlt::batch {

/// A line on the terminal that tells the share done of long work; nothing where the error output is
/// no terminal, or the work is over at once. The line is gone when the object goes.
class ProgressLine
{
public:
    ProgressLine(const QString &label, bool wanted);
    ~ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    /// Shows the share of work, which it never stops. Valid as long as the line.
    Progress progress();

private:
    void show(double share);

    QString m_label;
    bool m_wanted;
    int m_shownPercent = -1;
    QElapsedTimer m_elapsed;
};

} // namespace vlt::batch
