#pragma once

#include <QString>

#include <functional>

namespace vlt::app {

/// While it lives, the toolkit's end for want of a display is an ordinary one: one line on the
/// error output and exit status 1, instead of an abort. For the time in which the application
/// object is made; there is at most one.
class DisplayGuard
{
public:
    /// @param explain  the line that is printed, from the toolkit's own reason, which may be empty
    explicit DisplayGuard(std::function<QString(const QString &)> explain);

    /// Prints what the toolkit said meanwhile.
    ~DisplayGuard();

    DisplayGuard(const DisplayGuard &) = delete;
    DisplayGuard &operator=(const DisplayGuard &) = delete;
};

} // namespace vlt::app
