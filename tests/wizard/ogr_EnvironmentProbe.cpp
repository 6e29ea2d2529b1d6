// A driver plug-in without a driver. When the program registers its drivers, the plug-in writes the
// environment to the file that PROBE_OUTPUT names.

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
    const char *drivers = std::getenv("GDAL_DRIVER_PATH");
    std::fprintf(file, "%s\n1.5=%.1f\n", drivers == nullptr ? "(unset)" : drivers, 1.5);
    std::fputs("end\n", file);
    std::fclose(file);
}
