#pragma once

#include "DriverTesting.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTest>

#include <cmath>

/// The tables of the folder real, with what their authors know of them.
namespace realtables {

inline QString pathOf(const QString &name)
{
    return QStringLiteral(VLT_REAL_TABLES) + QLatin1Char('/') + name;
}

inline QByteArray contentOf(const QString &name)
{
    QFile file(pathOf(name));
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// The expectations; empty if they cannot be read.
inline QJsonArray expectations()
{
    return QJsonDocument::fromJson(contentOf(QStringLiteral("expected.json"))).array();
}

/// Adds a row for each table of a kind, or of any kind if it is empty.
inline void addTables(const QString &kind)
{
    QTest::addColumn<QJsonObject>("table");
    for (const QJsonValue &table : expectations()) {
        const QJsonObject object = table.toObject();
        if (kind.isEmpty() || object.value(QLatin1String("kind")) == kind)
            QTest::newRow(qPrintable(object.value(QLatin1String("file")).toString())) << object;
    }
}

/// Names of the tables that are not yet understood.
inline QSet<QString> notYet()
{
    QSet<QString> names;
    for (const QByteArray &line : contentOf(QStringLiteral("not_yet.txt")).split('\n')) {
        if (!line.startsWith('#'))
            names.insert(QString::fromUtf8(line));
    }
    return names;
}

/// Opens a table with the options that the user must set.
inline GDALDatasetUniquePtr open(const QJsonObject &table, const char *prefix)
{
    CPLStringList options;
    const QJsonObject given = table.value(QLatin1String("open")).toObject();
    for (auto option = given.begin(); option != given.end(); ++option) {
        const QString value = option.value().toString();
        const bool isFile = QFile::exists(pathOf(value));
        options.SetNameValue(qPrintable(option.key()),
                             (isFile ? pathOf(value) : value).toUtf8().constData());
    }
    const QJsonObject project = table.value(QLatin1String("project")).toObject();
    QStringList extent;
    for (const char *side : {"west", "south", "east", "north"})
        extent += QString::number(project.value(QLatin1String(side)).toDouble());
    if (!project.isEmpty())
        options.SetNameValue("EXTENT", extent.join(QLatin1Char(',')).toUtf8().constData());
    const QByteArray path = prefix + pathOf(table.value(QLatin1String("file")).toString()).toUtf8();
    return GDALDatasetUniquePtr(
        GDALDataset::Open(path.constData(), GDAL_OF_VECTOR, nullptr, options.List()));
}

inline QString numberText(double number)
{
    return QString::number(std::round(number * 1000) / 1000, 'g', 12);
}

/// The text of a value of the expectations; numbers have at most three decimals.
inline QString plainText(const QJsonValue &value)
{
    const QString text = value.toString();
    bool isNumber = value.isDouble();
    const double number = isNumber ? value.toDouble() : text.toDouble(&isNumber);
    return isNumber ? numberText(number) : text;
}

inline QString fieldText(const OGRFeature &feature, const QString &name)
{
    const int field = feature.GetFieldIndex(name.toUtf8().constData());
    if (field < 0 || !feature.IsFieldSetAndNotNull(field))
        return {};
    return plainText(QString::fromUtf8(feature.GetFieldAsString(field)));
}

inline QString differenceOfHeader(const QJsonObject &table, OGRLayer &layer)
{
    QStringList expected;
    for (const QJsonValue &row : table.value(QLatin1String("headerRows")).toArray())
        expected += QString::number(row.toInt());
    const QString found = QString::fromUtf8(layer.GetMetadataItem("header_rows"));
    return found == expected.join(QLatin1Char(','))
               ? QString()
               : QLatin1String("the header is in rows ") + found;
}

} // namespace realtables
