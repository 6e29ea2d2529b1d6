#include "plugins/scene/reading/TableDrivers.h"

#include "contract/Installation.h"

#include <cpl_conv.h>
#include <gdal_priv.h>

#include <dlfcn.h>

#include <filesystem>
#include <mutex>

namespace vlt::scene {

namespace {

std::string ownDirectory()
{
    Dl_info info;
    if (dladdr(reinterpret_cast<const void *>(&registerTableDrivers), &info) == 0 ||
        !info.dli_fname)
        return {};
    std::error_code error;
    return std::filesystem::absolute(info.dli_fname, error).parent_path().string();
}

} // namespace

void registerTableDrivers()
{
    static std::mutex guard;
    const std::lock_guard lock(guard);
    if (GDALGetDriverByName(contract::TableDriver))
        return;
    const std::string beside =
        CPLGetConfigOption("GDAL_DRIVER_PATH", nullptr) ? std::string() : ownDirectory();
    if (!beside.empty())
        CPLSetConfigOption("GDAL_DRIVER_PATH", beside.c_str());
    if (GDALGetDriverCount() == 0)
        GDALAllRegister();
    else // other parts of the program have registered their drivers
        GetGDALDriverManager()->AutoLoadDrivers();
    if (!beside.empty())
        CPLSetConfigOption("GDAL_DRIVER_PATH", nullptr);
}

} // namespace vlt::scene
