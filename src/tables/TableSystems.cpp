#include "tables/TableSystems.h"

#include "contract/TableMetadata.h"

#include <QStringList>

namespace vlt::tables {

namespace {

QString firstGiven(const QStringList &candidates)
{
    for (const QString &candidate : candidates) {
        if (!candidate.isEmpty())
            return candidate;
    }
    return {};
}

} // namespace

geodata::SystemPair chooseSystems(const KnownSystems &known)
{
    const QString declared = known.fileEpsg == QLatin1String("0") ? QString() : known.fileEpsg;
    const QString degrees = known.unit == QLatin1String(contract::metadata::Meters)
                                ? QString()
                                : QStringLiteral("4326");
    return {firstGiven({declared, degrees, known.terrainEpsg}),
            firstGiven({known.projectEpsg, known.terrainEpsg, degrees, declared})};
}

} // namespace vlt::tables
