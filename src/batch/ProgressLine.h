#pragma once

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

    /// @param share  0 .. 1
    void show(double share);

private:
    QString m_label;
    bool m_wanted;
    int m_shownPercent = -1;
    QElapsedTimer m_elapsed;
};

} // namespace vlt::batch
