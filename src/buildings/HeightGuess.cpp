#include "buildings/HeightGuess.h"

namespace vlt::buildings {

int guessedHeightField(const QList<geodata::VectorField> &fields)
{
    QStringList names;
    for (const geodata::VectorField &field : fields)
        names.append(field.name.toUpper());
    for (const QLatin1String likely : {QLatin1String("AGL"), QLatin1String("H"),
                                       QLatin1String("HEIGHT"), QLatin1String("COLOR")}) {
        if (const qsizetype at = names.indexOf(likely); at >= 0)
            return static_cast<int>(at);
    }
    return fields.size() >= 2 ? 1 : 0;
}

} // namespace vlt::buildings
