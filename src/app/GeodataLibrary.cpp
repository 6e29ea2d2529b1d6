#include "app/GeodataLibrary.h"

#include "localfiles/NoNetwork.h"

#include <cpl_conv.h>
#include <cpl_error.h>
#include <gdal_priv.h>

#include <cstring>

namespace vlt::app {

namespace {

// Newer versions of the library do not have the excluded driver and warn about its name at each
// start.
void CPL_STDCALL dropSkipWarning(CPLErr severity, CPLErrorNum number, const char *text)
{
    if (severity != CE_Warning || std::strstr(text, "Unable to find driver SEGY") == nullptr)
        CPLDefaultErrorHandler(severity, number, text);
}

} // namespace

void registerGeodataDrivers()
{
    CPLSetConfigOption("OGR_SKIP", "SEGY");
    const CPLErrorHandlerPusher handler(dropSkipWarning);
    GDALAllRegister();
    localfiles::closeNetworkFileSystems();
}

QStringList listOpenDatasets()
{
    int count = 0;
    GDALDataset **datasets = GDALDataset::GetOpenDatasets(&count);
    QStringList lines;
    for (int i = 0; i < count; ++i)
        lines += QStringLiteral("Open Dataset %1/%2 : ").arg(i + 1).arg(count) +
                 QString::fromUtf8(datasets[i]->GetDescription());
    return lines;
}

} // namespace vlt::app
