#pragma once

#include <QString>

#include <functional>

namespace vlt::app {

/// Makes the program end with one line on the error output and exit status 1, instead of an abort,
/// if the toolkit finds no display. To exist while the application object is created; only one at a
/// time.
class DisplayGuard
{
public:
    /// @param explain  makes the printed line from the toolkit's reason, which may be empty
    explicit DisplayGuard(std::function<QString(const QString &)> explain);

    /// Prints the toolkit's messages of the meantime.
    ~DisplayGuard();

    DisplayGuard(const DisplayGuard &) = delete;
    DisplayGuard &operator=(const DisplayGuard &) = delete;
};

} // namespace vlt::app
