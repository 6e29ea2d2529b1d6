#include "buildings/BuildingsSource.h"

#include <utility>

namespace vlt::buildings {

namespace {

constexpr std::pair<const char *, QString BuildingsSource::*> Texts[] = {
    {"Buildings", &BuildingsSource::file},
    {"Layer", &BuildingsSource::layer},
    {"Height", &BuildingsSource::heightField},
    {"Dtm", &BuildingsSource::terrainFile},
    {"Nodata", &BuildingsSource::terrainNoData}};

constexpr std::pair<const char *, double BuildingsSource::*> Coordinates[] = {
    {"CenterX", &BuildingsSource::xCenter}, {"CenterY", &BuildingsSource::yCenter}};

const QString ColorFieldsKey = QStringLiteral("ColorFields");
const QString HeightsKey = QStringLiteral("Heights");

using contract::BuildingHeights;

constexpr std::pair<const char *, std::string BuildingHeights::*> HeightFields[] = {
    {"elseField", &BuildingHeights::elseField},
    {"baseField", &BuildingHeights::baseField},
    {"bottomField", &BuildingHeights::bottomField}};

QVariantMap heightsAsMap(const BuildingsSource &source)
{
    const BuildingHeights &heights = source.heights;
    QVariantMap map{{QStringLiteral("unit"), static_cast<int>(heights.unit)},
                    {QStringLiteral("factor"), heights.factor},
                    {QStringLiteral("levelHeight"), heights.levelHeightM},
                    {QStringLiteral("elseUnit"), static_cast<int>(heights.elseUnit)},
                    {QStringLiteral("reference"), static_cast<int>(heights.reference)},
                    {QStringLiteral("base"), static_cast<int>(heights.base)},
                    {QStringLiteral("where"), source.where}};
    if (heights.defaultM)
        map.insert(QStringLiteral("default"), *heights.defaultM);
    for (const auto &[key, member] : HeightFields)
        map.insert(QLatin1String(key), QString::fromStdString(heights.*member));
    return map;
}

void readHeights(const QVariantMap &map, BuildingsSource &source)
{
    BuildingHeights &heights = source.heights;
    const auto index = [&map](const char *key) { return map.value(QLatin1String(key)).toInt(); };
    heights.unit = static_cast<contract::HeightUnit>(index("unit"));
    heights.factor = map.value(QStringLiteral("factor")).toDouble();
    heights.levelHeightM = map.value(QStringLiteral("levelHeight")).toDouble();
    heights.elseUnit = static_cast<contract::HeightUnit>(index("elseUnit"));
    heights.reference = static_cast<contract::HeightReference>(index("reference"));
    heights.base = static_cast<contract::BaseRule>(index("base"));
    if (map.contains(QStringLiteral("default")))
        heights.defaultM = map.value(QStringLiteral("default")).toDouble();
    for (const auto &[key, member] : HeightFields)
        heights.*member = map.value(QLatin1String(key)).toString().toStdString();
    source.where = map.value(QStringLiteral("where")).toString();
}

QVariantList fieldsAsList(const QList<geodata::VectorField> &fields)
{
    QVariantList list;
    for (const geodata::VectorField &field : fields)
        list.append(QVariant(QVariantList{field.name, static_cast<int>(field.kind)}));
    return list;
}

QList<geodata::VectorField> fieldsOf(const QVariantList &list)
{
    QList<geodata::VectorField> fields;
    for (const QVariant &pair : list)
        fields.append({pair.toList().value(0).toString(),
                       static_cast<geodata::FieldKind>(pair.toList().value(1).toInt())});
    return fields;
}

} // namespace

BuildingsSource readBuildingsSource(const QVariantMap &parameters)
{
    BuildingsSource source;
    for (const auto &[key, member] : Texts)
        source.*member = parameters.value(QLatin1String(key)).toString();
    for (const auto &[key, member] : Coordinates)
        source.*member = parameters.value(QLatin1String(key)).toDouble();
    source.colorFields = fieldsOf(parameters.value(ColorFieldsKey).toList());
    if (parameters.contains(HeightsKey))
        readHeights(parameters.value(HeightsKey).toMap(), source);
    source.project = parameters.value(QStringLiteral("ProjectName")).toString();
    return source;
}

void publishBuildingsSource(const BuildingsSource &source, QVariantMap &parameters)
{
    for (const auto &[key, member] : Texts)
        parameters.insert(QLatin1String(key), source.*member);
    for (const auto &[key, member] : Coordinates)
        parameters.insert(QLatin1String(key), source.*member);
    parameters.insert(ColorFieldsKey, fieldsAsList(source.colorFields));
    if (source.heights == contract::BuildingHeights() && source.where.isEmpty())
        parameters.remove(HeightsKey);
    else
        parameters.insert(HeightsKey, heightsAsMap(source));
}

} // namespace vlt::buildings
