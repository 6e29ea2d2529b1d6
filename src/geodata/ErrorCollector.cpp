#include "geodata/ErrorCollector.h"

#include "platform/TextDecoding.h"

namespace vlt::geodata {

ErrorCollector::ErrorCollector()
{
    CPLErrorReset();
    CPLPushErrorHandlerEx(&ErrorCollector::collect, this);
}

ErrorCollector::~ErrorCollector()
{
    CPLPopErrorHandler();
    CPLErrorReset();
}

QString ErrorCollector::failure(const QString &otherwise) const
{
    return m_failure.isEmpty() ? otherwise : m_failure;
}

void CPL_STDCALL ErrorCollector::collect(CPLErr severity, CPLErrorNum /*number*/,
                                         const char *message)
{
    auto *self = static_cast<ErrorCollector *>(CPLGetErrorHandlerUserData());
    if (severity >= CE_Failure)
        self->m_failure = platform::decodeText(QByteArray(message)).trimmed();
}

} // namespace vlt::geodata
