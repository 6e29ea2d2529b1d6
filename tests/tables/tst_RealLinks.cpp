#include "RealTables.h"

#include <QMap>

using namespace Qt::StringLiterals;
using namespace realtables;

/// Tables of links in the manner of real exports, with what their authors know of them.
class tst_RealLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        QVERIFY(!expectations().isEmpty());
    }

    void findsTheLinks_data() { addTables(u"links"_s); }
    void findsTheLinks()
    {
        QFETCH(QJsonObject, table);
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = open(table, "link:");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(u' ')));
        QCOMPARE(differenceOfHeader(table, *dataset->GetLayer(0)), QString());
        const QList<End> ends = endsOf(*dataset->GetLayer(1));
        const QJsonObject counts = table.value(u"counts"_s).toObject();
        QCOMPARE(ends.size(), 2 * counts.value(u"links"_s).toInt());

        for (const auto &link : table.value(u"links"_s).toArray()) {
            const QString difference = differenceOf(link.toObject(), ends);
            QVERIFY2(difference.isEmpty(), qPrintable(difference));
        }
        QCOMPARE(problemRowsOf(*dataset->GetLayer(0)), expectedProblemRows(table));
        QCOMPARE(rolesOf(*dataset->GetLayer(0), table), expectedRolesOf(table));
        QCOMPARE(QString::fromUtf8(dataset->GetLayer(0)->GetMetadataItem("SHAPE", "roles")),
                 u"%1 rows, each of them a link %2"_s.arg(
                     QString::number(counts.value(u"rows"_s).toInt()),
                     table.contains(u"shape"_s) ? u"between sites of another table"_s
                                                : u"with both ends"_s));
    }

private:
    /// An end of a link, as the driver gives it.
    struct End
    {
        QString link;
        QString end;
        QString name;
        QString heightM;
        QString frequencyMHz;
        double x = NAN;
        double y = NAN;
    };

    static QList<End> endsOf(OGRLayer &layer)
    {
        QList<End> ends;
        while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
            const OGRFeature &of = *feature;
            End end = {fieldText(of, u"Link"_s), fieldText(of, u"End"_s),
                       fieldText(of, u"Site ID"_s), fieldText(of, u"Transmitter-1 Height (m)"_s),
                       fieldText(of, u"Frequency (MHz)"_s)};
            if (const OGRGeometry *geometry = of.GetGeometryRef()) {
                end.x = geometry->toPoint()->getX();
                end.y = geometry->toPoint()->getY();
            }
            ends += end;
        }
        return ends;
    }

    static bool agree(const QString &found, const QJsonValue &expected)
    {
        return expected.isUndefined() || found == plainText(expected);
    }

    static bool agree(double found, const QJsonValue &expected)
    {
        return expected.isDouble() ? std::abs(found - expected.toDouble()) <= 1e-6
                                   : std::isnan(found);
    }

    /// The difference between an end as expected and the one that was found; empty for none.
    static QString differenceOfEnd(const QJsonObject &expected, const End &end)
    {
        const bool isSame = agree(end.name, expected.value(u"id"_s)) &&
                            agree(end.heightM, expected.value(u"height"_s)) &&
                            agree(end.x, expected.value(u"x"_s)) &&
                            agree(end.y, expected.value(u"y"_s));
        return isSame ? QString()
                      : u"end %1 of %2: \"%3\" at %4 %5, height %6"_s.arg(
                            end.end, end.link, end.name, QString::number(end.x, 'g', 9),
                            QString::number(end.y, 'g', 9), end.heightM);
    }

    /// The difference between a link as expected and those that were found; empty for none. A link
    /// without a name is known by its ends.
    static QString differenceOf(const QJsonObject &expected, const QList<End> &ends)
    {
        QString nearest = u"no link \"%1\""_s.arg(expected.value(u"name"_s).toString());
        for (qsizetype i = 0; i + 1 < ends.size(); i += 2) {
            const End &a = ends[i];
            const bool isNamed = expected.contains(u"name"_s);
            if (isNamed && !agree(a.link, expected.value(u"name"_s)))
                continue;
            nearest = differenceOfEnd(expected.value(u"a"_s).toObject(), a) +
                      differenceOfEnd(expected.value(u"b"_s).toObject(), ends[i + 1]);
            if (nearest.isEmpty() && !agree(a.frequencyMHz, expected.value(u"frequencyMHz"_s)))
                nearest = u"%1 has %2 MHz"_s.arg(a.link, a.frequencyMHz);
            if (nearest.isEmpty() || isNamed)
                break;
        }
        return nearest;
    }

    /// The roles that are expected, one per line, with their columns; those of the columns that
    /// name an end are one role, because an id can be a name.
    static QStringList expectedRolesOf(const QJsonObject &table)
    {
        QStringList lines;
        const QJsonObject roles = table.value(u"roles"_s).toObject();
        for (auto role = roles.begin(); role != roles.end(); ++role) {
            QStringList columns;
            for (const auto &column : role.value().toArray())
                columns += column.toString();
            if (role.value().isString())
                columns += role.value().toString();
            lines += plainRole(role.key()) + u": "_s + columns.join(u", "_s);
        }
        lines.sort();
        return lines;
    }

    static QString plainRole(QString role) { return role.replace(u"siteName"_s, u"siteId"_s); }

    /// The same as the driver found them, as far as the table's author states them.
    static QStringList rolesOf(OGRLayer &layer, const QJsonObject &table)
    {
        QMap<QString, QStringList> columns;
        for (const QString &role : table.value(u"roles"_s).toObject().keys())
            columns[plainRole(role)] = {};
        const bool hasHeader = !table.value(u"headerRows"_s).toArray().isEmpty();
        char **items = layer.GetMetadata("roles");
        for (char **item = items; item && *item; ++item) {
            const QStringList parts = QString::fromUtf8(*item).section(u'=', 1).split(u'|');
            const QString role = plainRole(parts.first());
            if (!STARTS_WITH(*item, "ROLE_") || !columns.contains(role))
                continue;
            const int field = layer.GetLayerDefn()->GetFieldIndex(parts[2].toUtf8().constData());
            columns[role] += hasHeader ? parts[2] : u"Column %1"_s.arg(field + 1);
        }
        QStringList lines;
        for (auto role = columns.begin(); role != columns.end(); ++role)
            lines += role.key() + u": "_s + role.value().join(u", "_s);
        return lines;
    }

    /// The problems of rows: row|column.
    static QStringList problemRowsOf(OGRLayer &layer)
    {
        QStringList rows;
        for (const QString &problem : problemsOf(layer)) {
            const QStringList parts = problem.section(u'=', 1).split(u'|');
            const bool isAbsence = parts.last().endsWith(u"is empty"_s);
            if (parts.size() > 2 && !parts[0].isEmpty() && !isAbsence)
                rows += parts[0] + u'|' + parts[1];
        }
        return rows;
    }

    static QStringList expectedProblemRows(const QJsonObject &table)
    {
        QStringList rows;
        for (const auto &problem : table.value(u"problems"_s).toArray())
            rows += QString::number(problem.toObject().value(u"row"_s).toInt()) + u'|' +
                    problem.toObject().value(u"column"_s).toString();
        return rows;
    }
};

QTEST_GUILESS_MAIN(tst_RealLinks)
#include "tst_RealLinks.moc"
