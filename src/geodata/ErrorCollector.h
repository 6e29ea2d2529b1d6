#pragma once

#include <QString>

#include <cpl_error.h>

namespace vlt::geodata {

/// While it lives, what the geodata library reports on this thread goes here and not to the error
/// output.
class ErrorCollector
{
public:
    ErrorCollector();
    ~ErrorCollector();
    ErrorCollector(const ErrorCollector &) = delete;
    ErrorCollector &operator=(const ErrorCollector &) = delete;

    /// The last failure reported, the one that knows what was being done, or `otherwise` when the
    /// library gave no reason.
    QString failure(const QString &otherwise) const;

private:
    static void CPL_STDCALL collect(CPLErr severity, CPLErrorNum number, const char *message);

    QString m_failure;
};

} // namespace vlt::geodata
