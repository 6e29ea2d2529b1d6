#pragma once

#include <QString>

#include <cpl_error.h>

namespace vlt::geodata {

/// Collects the errors and warnings of the geodata library on this thread as long as it exists; the
/// library then prints nothing.
class ErrorCollector
{
public:
    ErrorCollector();
    ~ErrorCollector();
    ErrorCollector(const ErrorCollector &) = delete;
    ErrorCollector &operator=(const ErrorCollector &) = delete;

    /// The last failure reported, which names the failed operation, or `otherwise` if the library
    /// gave no reason.
    QString failure(const QString &otherwise) const;

private:
    static void CPL_STDCALL collect(CPLErr severity, CPLErrorNum number, const char *message);

    QString m_failure;
};

} // namespace vlt::geodata
