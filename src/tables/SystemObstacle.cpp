#include "tables/SystemObstacle.h"

#include "language/VltLanguageManager.h"

namespace vlt::tables {

namespace {

bool isKnown(const QString &system)
{
    const geodata::SrsFacts facts = geodata::srsFacts(system);
    return facts.use != geodata::SrsUse::Unknown || !facts.name.isEmpty();
}

} // namespace

std::optional<Error> systemObstacle(const geodata::SystemPair &systems)
{
    if (auto refusal = systemRefusal(systems))
        return refusal;
    for (const QString &system : {systems.source, systems.target}) {
        if (!system.isEmpty() && !isKnown(system))
            return Error::asIs(dico_label("MESS_NO_LAYER_SRS",
                                          "No layer can be made: the coordinate "
                                          "system \"%1\" is not known")
                                   .arg(system));
    }
    return std::nullopt;
}

std::optional<Error> undeclaredObstacle(const TableFileInfo &file,
                                        const geodata::SystemPair &systems)
{
    if (!file.isUndeclared || !systems.source.isEmpty() || !systems.target.isEmpty())
        return std::nullopt;
    return Error::asIs(dico_label("MESS_NO_LAYER_UNDECLARED",
                                  "No layer can be made: the coordinates are in meters, and their "
                                  "coordinate system is not known"));
}

} // namespace vlt::tables
