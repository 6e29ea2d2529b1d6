#include "buildings/HeightGuess.h"

#include <QRegularExpression>

#include <algorithm>

namespace vlt::buildings {

namespace {

using contract::HeightUnit;
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

/// The words of a name in lower case: parts between signs and at changes from a small to a capital
/// letter.
QStringList wordsOf(const QString &name)
{
    static const QRegularExpression border(QStringLiteral("[^\\p{L}]+|(?<=\\p{Ll})(?=\\p{Lu})"));
    return name.split(border, Qt::SkipEmptyParts)
        .join(QLatin1Char(' '))
        .toLower()
        .split(QLatin1Char(' '));
}

/// Whether a name has one of the words.
bool hasOne(const QStringList &words, const QStringList &known)
{
    return std::any_of(words.begin(), words.end(),
                       [&known](const QString &word) { return known.contains(word); });
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

QStringList fieldsNamedAsHeights(const PolygonLayer &layer)
{
    using L = QLatin1String;
    static const QStringList height{
        L("agl"),     L("h"),    L("height"), L("hgt"),
        L("hauteur"), L("haut"), L("hoehe"),  QStringLiteral("h\u00f6he")};
    static const QStringList other{L("min"),  L("base"), L("bottom"),      L("ground"),
                                   L("roof"), L("sol"),  L("underground"), L("toit")};
    QStringList named;
    for (const QString &field : possibleHeightFields(layer)) {
        const QStringList words = wordsOf(field);
        if (!hasOne(words, other) &&
            (hasOne(words, height) || unitFromName(field) != HeightUnit::Metres))
            named << field;
    }
    return named;
}

HeightUnit unitFromName(const QString &field)
{
    using L = QLatin1String;
    static const QStringList many{L("levels"),     L("floors"),  L("storeys"),
                                  L("stories"),    L("niveaux"), L("geschosse"),
                                  L("pisos"),      L("plantas"), L("piani"),
                                  L("stockwerke"), L("etages"),  QStringLiteral("\u00e9tages")};
    static const QStringList one{L("level"), L("floor"), L("storey"),
                                 L("story"), L("niv"),   L("niveau"),
                                 L("etage"), L("etag"),  QStringLiteral("\u00e9tage")};
    static const QStringList number{L("nb"),  L("nbr"),    L("nbre"),  L("nombre"), L("no"),
                                    L("num"), L("number"), L("count"), L("anzahl")};
    static const QStringList length{L("height"),    L("hgt"),   L("hauteur"),
                                    L("haut"),      L("hoehe"), L("elev"),
                                    L("elevation"), L("alt"),   L("altitude")};
    static const QRegularExpression counted(QStringLiteral("^(nbre|nbr|nb)(?=\\p{L})"));
    QStringList words = wordsOf(field);
    if (const qsizetype at =
            words.indexOf(QRegularExpression(counted.pattern() + QStringLiteral(".*")));
        at >= 0) // "NBETAGES"
        words << words.at(at).mid(counted.match(words.at(at)).capturedLength()) << L("nb");
    if (hasOne(words, {L("ft"), L("feet"), L("pieds")}))
        return HeightUnit::Feet;
    if (hasOne(words, length))
        return HeightUnit::Metres;
    const bool isCount = hasOne(words, many) || (hasOne(words, one) && hasOne(words, number));
    return isCount ? HeightUnit::Levels : HeightUnit::Metres;
}

} // namespace vlt::buildings
