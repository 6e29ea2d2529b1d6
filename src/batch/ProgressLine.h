#pragma once

#include "contract/Progress.h"

#include <QElapsedTimer>
#include <QString>

namespace vlt::batch {

/// A line on the terminal with the progress of long work. There is none if the error output is not
/// a terminal or if the work ends soon. The destructor removes the line.
class ProgressLine
{
public:
    ProgressLine(const QString &label, bool wanted);
    ~ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    /// The function that shows the progress; it never stops the work and is valid as long as this
    /// object.
    Progress progress();

private:
    void show(double share);

    QString m_label;
    bool m_wanted;
    int m_shownPercent = -1;
    QElapsedTimer m_elapsed;
};

} // namespace vlt::batch
