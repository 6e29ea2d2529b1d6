#include "localfiles/NoNetwork.h"

#include <cpl_conv.h>
#include <cpl_http.h>

namespace vlt::localfiles {

namespace {

CPLHTTPResult *refuse(const char * /*url*/, CSLConstList /*options*/, GDALProgressFunc /*progress*/,
                      void * /*progressData*/, CPLHTTPFetchWriteFunc /*write*/,
                      void * /*writeData*/, void * /*userData*/)
{
    auto *result = static_cast<CPLHTTPResult *>(CPLCalloc(1, sizeof(CPLHTTPResult)));
    result->nStatus = 1;
    result->pszErrBuf = CPLStrdup("network access is not allowed");
    return result;
}

} // namespace

NoNetwork::NoNetwork()
{
    CPLHTTPPushFetchCallback(refuse, nullptr);
}

NoNetwork::~NoNetwork()
{
    CPLHTTPPopFetchCallback();
}

} // namespace vlt::localfiles
