#include "geodata/SrsDefinition.h"

#include "geodata/ErrorCollector.h"

#include <ogr_spatialref.h>

#include <array>

namespace vlt::geodata {

bool isSrsDefinition(const QString &text)
{
    constexpr std::array<const char *, 3> NothingFromOutside = {"ALLOW_NETWORK_ACCESS=NO",
                                                                "ALLOW_FILE_ACCESS=NO", nullptr};

    const ErrorCollector quiet;
    OGRSpatialReference system;
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return system.SetFromUserInput(text.toLatin1().constData(), NothingFromOutside.data()) ==
               OGRERR_NONE &&
           system.Validate() == OGRERR_NONE;
}

} // namespace vlt::geodata
