#include "batch/BuildingsValues.h"

#include "geodata/ValuesFile.h"
#include "language/VltLanguageManager.h"

#include <QJsonArray>

namespace vlt::batch {

namespace {

const QString Values = QStringLiteral("values");
const QString IdField = QStringLiteral("id-field");

} // namespace

QList<QCommandLineOption> valuesOptions()
{
    return {{Values,
             dico_label("MESS_OPT_VALUES",
                        "Also write a list of all buildings, with the value of the image under "
                        "each: a CSV file, or a GeoPackage with the outlines."),
             QStringLiteral("FILE.csv|.gpkg")},
            {IdField,
             dico_label("MESS_OPT_ID_FIELD",
                        "Field that names the buildings in this list (default: ID, osm_id, cleabs "
                        "or gml_id, if there is one)."),
             QStringLiteral("NAME")}};
}

Result<std::optional<buildings::ValuesTarget>> readValuesOptions(const QCommandLineParser &parser)
{
    const buildings::ValuesTarget target{parser.value(Values), parser.value(IdField)};
    if (parser.isSet(IdField) && target.idField.isEmpty())
        return wrongUsage(dico_label("MESS_USE_NO_VALUE", "%1 needs a value")
                              .arg(QStringLiteral("--") + IdField));
    if (parser.isSet(IdField) && !parser.isSet(Values))
        return wrongUsage(
            dico_label("MESS_USE_NEEDS_OPTION", "--%1 needs --%2").arg(IdField, Values));
    if (!parser.isSet(Values))
        return std::optional<buildings::ValuesTarget>();
    if (!geodata::ValuesFile::isName(target.path))
        return wrongValue(Values,
                          dico_label("MESS_USE_VALUES_FILE", "the name of a file .csv or .gpkg"),
                          target.path);
    return std::optional(target);
}

QJsonObject summaryJson(const buildings::ValueSummary &summary)
{
    const auto numberOrNull = [](const std::optional<double> &number) {
        return number ? QJsonValue(*number) : QJsonValue(QJsonValue::Null);
    };
    QJsonArray classes;
    for (qsizetype i = 0; i < summary.classes.size(); ++i) {
        const buildings::ValueClass &one = summary.classes.at(i);
        classes.append(
            QJsonObject{{QStringLiteral("from"), numberOrNull(one.from)},
                        {QStringLiteral("to"), numberOrNull(one.to)},
                        {QStringLiteral("buildings"), static_cast<qint64>(one.buildings)},
                        {QStringLiteral("shareFrom"), summary.shareFrom(i)}});
    }
    QJsonObject object{{QStringLiteral("buildings"), static_cast<qint64>(summary.buildings)},
                       {QStringLiteral("unit"), summary.unit},
                       {QStringLiteral("classes"), classes}};
    for (std::size_t i = 0; i < std::size(buildings::QuantileShares); ++i)
        object.insert(QLatin1String(buildings::QuantileShares[i].name),
                      numberOrNull(summary.quantiles[i]));
    return object;
}

} // namespace vlt::batch
