#include "buildings/HeightGuess.h"

namespace vlt::buildings {

namespace {

using geodata::FieldKind;
using geodata::PolygonLayer;
using geodata::VectorField;

/// The first of the known names, in their order, among the upper-case names; -1 for none.
qsizetype indexOfKnownName(const QStringList &upperNames)
{
    for (const QLatin1String likely : {QLatin1String("AGL"), QLatin1String("H"),
                                       QLatin1String("HEIGHT"), QLatin1String("COLOR")}) {
        if (const qsizetype at = upperNames.indexOf(likely); at >= 0)
            return at;
    }
    return -1;
}

QStringList namesOf(const QList<VectorField> &fields, bool (*isWanted)(FieldKind))
{
    QStringList names;
    for (const VectorField &field : fields) {
        if (isWanted(field.kind))
            names << field.name;
    }
    return names;
}

QStringList upper(QStringList names)
{
    for (QString &name : names)
        name = name.toUpper();
    return names;
}

} // namespace

int guessedHeightField(const QList<VectorField> &fields)
{
    const QStringList names = namesOf(fields, [](FieldKind) { return true; });
    if (const qsizetype at = indexOfKnownName(upper(names)); at >= 0)
        return static_cast<int>(at);
    return fields.size() >= 2 ? 1 : 0;
}

bool isOffered(FieldKind kind)
{
    return kind == FieldKind::Integer || kind == FieldKind::Real || kind == FieldKind::String;
}

bool canHaveHeights(FieldKind kind)
{
    return isOffered(kind) || kind == FieldKind::Integer64;
}

QStringList possibleHeightFields(const PolygonLayer &layer)
{
    return namesOf(layer.fields, canHaveHeights);
}

QString preselectedHeightField(const PolygonLayer &layer)
{
    return namesOf(layer.fields, isOffered).value(guessedHeightField(layer.fields));
}

QString likelierHeightField(const PolygonLayer &layer, const QString &chosen)
{
    if (indexOfKnownName({chosen.toUpper()}) >= 0)
        return {};
    const QStringList names = possibleHeightFields(layer);
    return names.value(indexOfKnownName(upper(names)));
}

} // namespace vlt::buildings
