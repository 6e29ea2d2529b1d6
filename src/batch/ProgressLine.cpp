#include "batch/ProgressLine.h"

#include <cstdio>
#include <unistd.h>

namespace vlt::batch {

namespace {

constexpr qint64 SilentMilliseconds = 500;

} // namespace

ProgressLine::ProgressLine(const QString &label, bool wanted)
    : m_label(label)
    , m_wanted(wanted && isatty(STDERR_FILENO) == 1)
{
    m_elapsed.start();
}

ProgressLine::~ProgressLine()
{
    if (m_shownPercent >= 0)
        std::fputs("\r\033[K", stderr);
}

Progress ProgressLine::progress()
{
    return [this](double share) {
        show(share);
        return true;
    };
}

void ProgressLine::show(double share)
{
    const int percent = qBound(0, static_cast<int>(share * 100), 100);
    if (!m_wanted || percent == m_shownPercent || m_elapsed.elapsed() < SilentMilliseconds)
        return;
    m_shownPercent = percent;
    std::fprintf(stderr, "\r%s %d %%", m_label.toUtf8().constData(), percent);
    std::fflush(stderr);
}

} // namespace vlt::batch
