#include "localfiles/NoNetwork.h"

#include <array>

#include <cpl_conv.h>
#include <cpl_http.h>
#include <cpl_vsi.h>
#include <cpl_vsi_virtual.h>

namespace vlt::localfiles {

namespace {

constexpr const char *AllowedNetworkFile = "CPL_VSIL_CURL_ALLOWED_FILENAME";

CPLHTTPResult *refuse(const char * /*url*/, CSLConstList /*options*/, GDALProgressFunc /*progress*/,
                      void * /*progressData*/, CPLHTTPFetchWriteFunc /*write*/,
                      void * /*writeData*/, void * /*userData*/)
{
    auto *result = static_cast<CPLHTTPResult *>(CPLCalloc(1, sizeof(CPLHTTPResult)));
    result->nStatus = 1;
    result->pszErrBuf = CPLStrdup("network access is not allowed");
    return result;
}

void *openNothing(void * /*user*/, const char * /*name*/, const char * /*access*/)
{
    return nullptr;
}

int findNothing(void * /*user*/, const char * /*name*/, VSIStatBufL * /*found*/, int /*flags*/)
{
    return -1;
}

} // namespace

NoNetwork::NoNetwork()
{
    if (const char *allowed = CPLGetThreadLocalConfigOption(AllowedNetworkFile, nullptr))
        m_allowedBefore = allowed;
    CPLHTTPPushFetchCallback(refuse, nullptr);
    // No file of a network file system has this name.
    CPLSetThreadLocalConfigOption(AllowedNetworkFile, "none");
}

NoNetwork::~NoNetwork()
{
    CPLSetThreadLocalConfigOption(AllowedNetworkFile,
                                  m_allowedBefore ? m_allowedBefore->c_str() : nullptr);
    CPLHTTPPopFetchCallback();
}

void closeNetworkFileSystems()
{
    constexpr std::array Prefixes = {"/vsicurl/",
                                     "/vsicurl?",
                                     "/vsicurl_streaming/",
                                     "/vsis3/",
                                     "/vsis3_streaming/",
                                     "/vsigs/",
                                     "/vsigs_streaming/",
                                     "/vsiaz/",
                                     "/vsiaz_streaming/",
                                     "/vsiadls/",
                                     "/vsioss/",
                                     "/vsioss_streaming/",
                                     "/vsiswift/",
                                     "/vsiswift_streaming/",
                                     "/vsiwebhdfs/",
                                     "/vsihdfs/"};
    // The library does not keep the handlers that are replaced, but open files may need them.
    static std::array<const VSIFilesystemHandler *, Prefixes.size()> replaced = {};
    if (replaced.front())
        return;
    VSIFilesystemPluginCallbacksStruct *nothing = VSIAllocFilesystemPluginCallbacksStruct();
    nothing->open = openNothing;
    nothing->stat = findNothing;
    for (std::size_t i = 0; i < Prefixes.size(); ++i) {
        replaced[i] = VSIFileManager::GetHandler(Prefixes[i]);
        VSIInstallPluginHandler(Prefixes[i], nothing);
    }
    VSIFreeFilesystemPluginCallbacksStruct(nothing);
}

} // namespace vlt::localfiles
