// A driver plug-in that drives nothing: when the program registers its drivers, it writes the
// environment that they find into the file that PROBE_OUTPUT names.

#include <cpl_conv.h>

#include <cstdio>
#include <cstdlib>

// NOLINTNEXTLINE(readability-identifier-naming): the loader looks for this name
extern "C" __attribute__((visibility("default"))) void RegisterOGREnvironmentProbe();

// NOLINTNEXTLINE(readability-identifier-naming): the loader looks for this name
extern "C" void RegisterOGREnvironmentProbe()
{
    const char *path = std::getenv("PROBE_OUTPUT");
    std::FILE *file = path == nullptr ? nullptr : std::fopen(path, "w");
    if (file == nullptr)
        return;
    for (const char *name : {"VLT_BIN_HOME", "PATH", "GDAL_DRIVER_PATH", "OGR_DRIVER_PATH",
                             "GDAL_FILENAME_IS_UTF8", "SHAPE_ENCODING", "GDAL_DATA"}) {
        const char *value = std::getenv(name);
        std::fprintf(file, "%s=%s\n", name, value == nullptr ? "(unset)" : value);
    }
    std::fprintf(file, "OGR_SKIP=%s\n", CPLGetConfigOption("OGR_SKIP", "(unset)"));
    std::fprintf(file, "1.5=%.1f\n", 1.5);
    std::fputs("end\n", file);
    std::fclose(file);
}
