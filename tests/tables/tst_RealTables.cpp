#include "RealTables.h"

#include <QMap>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace realtables;

/// Tables in the manner of real exports, with what their authors know of them.
class tst_RealTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        QVERIFY(!expectations().isEmpty());
        m_notYet = notYet();
    }

    void findsTheSites_data() { addTables(u"sites"_s); }
    void findsTheSites()
    {
        QFETCH(QJsonObject, table);
        const QString name = table.value(u"file"_s).toString();
        const QString difference = differenceOfSites(table);
        if (m_notYet.contains(name))
            QEXPECT_FAIL("", "not yet understood", Continue);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    void findsMistakesOfPositions_data() { addTables(u"sites"_s); }
    void findsMistakesOfPositions()
    {
        QFETCH(QJsonObject, table);
        const QString name = table.value(u"file"_s).toString();
        const QStringList expected = mistakesExpectedOf(table);
        if (expected.isEmpty() && !name.startsWith(u"control_"_s))
            return;

        QCOMPARE(mistakesFoundIn(table), expected);
    }

    void reportsRows_data() { addTables(u"sites"_s); }
    void reportsRows()
    {
        QFETCH(QJsonObject, table);
        QStringList expected;
        for (const auto &problem : table.value(u"problems"_s).toArray()) {
            const QString row = plainText(problem[u"row"_s]);
            const QString column = problem[u"column"_s].toString();
            const bool isOfSecond = problem[u"file"_s].isString() || problem[u"sheet"_s].isString();
            if (row != u"0"_s && !column.isEmpty() && !isOfSecond)
                expected += row + u'|' + column;
        }
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = open(table, "site:");
        QVERIFY(dataset);
        QSet<QString> found;
        char **items = dataset->GetLayer(0)->GetMetadata("problems");
        for (char **item = items; item && *item; ++item)
            found += QString::fromUtf8(*item).section(u'=', 1).section(u'|', 0, 1);
        if (m_notYet.contains(table.value(u"file"_s).toString()))
            return;

        for (const QString &problem : expected)
            QVERIFY2(found.contains(problem), qPrintable(problem));
    }

    void reportsUnusedColumns_data() { addTables(u"sites"_s); }
    void reportsUnusedColumns()
    {
        QFETCH(QJsonObject, table);
        QStringList expected;
        for (const auto &problem : table.value(u"problems"_s).toArray()) {
            if (problem[u"kind"_s].toString() == u"unused"_s)
                expected += problem[u"column"_s].toString() + problem[u"sheet"_s].toString();
        }
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = open(table, "site:");
        QVERIFY(dataset);

        QCOMPARE(unusedColumnsOf(*dataset->GetLayer(0)), expected);
    }

    void findsTheRoles_data() { addTables(u"sites"_s); }
    void findsTheRoles()
    {
        QFETCH(QJsonObject, table);
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = open(table, "site:");
        QVERIFY(dataset);
        // a table without a header has names by roles
        if (m_notYet.contains(table.value(u"file"_s).toString()))
            return;
        OGRLayer &layer = *dataset->GetLayer(0);
        if (!table.value(u"headerRows"_s).toArray().isEmpty())
            compareRoles(rolesOf(layer, "ROLE_"), table.value(u"roles"_s).toObject());
        compareRoles(rolesOf(layer, "SECOND_ROLE_"), table.value(u"sectorRoles"_s).toObject());
    }

private:
    static void compareRoles(const QMap<QString, QStringList> &found, const QJsonObject &expected)
    {
        for (auto role = expected.begin(); role != expected.end(); ++role) {
            const QString name = role.key().section(u"Parts"_s, 0, 0);
            QStringList columns = found.value(name);
            // a column that names the sites is their id or their name
            const bool isName = name == u"siteId" || name == u"siteName";
            const QString other = name == u"siteId" ? u"siteName"_s : u"siteId"_s;
            if (isName && columns.isEmpty() && !role.value().isNull() && !expected.contains(other))
                columns = found.value(other);
            QCOMPARE(name + u": "_s + columns.join(u';'),
                     name + u": "_s + columnsIn(role.value()).join(u';'));
        }
    }

    /// The columns and sheets that the problems of a table name as not used.
    static QStringList unusedColumnsOf(OGRLayer &layer)
    {
        static const QRegularExpression Unused(
            u"^\\|\\|Warning\\|(?:the azimuths in column \"(.*)\" are not used"
            u"|the values in column \"(.*)\" are no azimuths"
            u"|only the sheet .* other sheets hold .*\\(\"(.*)\"\\))"_s);
        QStringList columns;
        char **items = layer.GetMetadata("problems");
        for (char **item = items; item && *item; ++item) {
            const auto match = Unused.match(QString::fromUtf8(*item).section(u'=', 1));
            if (match.hasMatch())
                columns += match.captured(match.lastCapturedIndex());
        }
        return columns;
    }

    /// Columns by role, in the order of the table.
    ///
    /// @param prefix  of the items of the metadata
    static QMap<QString, QStringList> rolesOf(OGRLayer &layer, const char *prefix)
    {
        QMap<QString, QStringList> roles;
        char **items = layer.GetMetadata("roles");
        for (char **item = items; item && *item; ++item) {
            const QStringList parts = QString::fromUtf8(*item).section(u'=', 1).split(u'|');
            if (STARTS_WITH(*item, prefix))
                roles[parts[0] == u"tilt" ? u"mechanicalTilt"_s : parts[0]] +=
                    parts[2].simplified();
        }
        return roles;
    }

    /// The columns that an expectation names: none, one or several.
    static QStringList columnsIn(const QJsonValue &value)
    {
        QStringList columns;
        const QJsonArray array = value.isArray() ? value.toArray() : QJsonArray{value};
        for (const auto &column : array) {
            if (column.isString())
                columns += column.toString().simplified();
        }
        return columns;
    }

    /// The kinds of problems that concern the positions of a table as a whole.
    static QStringList mistakesExpectedOf(const QJsonObject &table)
    {
        static const QStringList Others = {u"value"_s, u"position"_s, u"conflict"_s, u"unused"_s};
        QStringList kinds;
        for (const auto &problem : table.value(u"problems"_s).toArray()) {
            const QString kind = problem.toObject().value(u"kind"_s).toString();
            if (!Others.contains(kind))
                kinds += kind;
        }
        return kinds;
    }

    /// The same of the driver's findings.
    static QStringList mistakesFoundIn(const QJsonObject &table)
    {
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = open(table, "site:");
        if (!dataset)
            return warnings.texts;
        QStringList kinds;
        char **items = dataset->GetLayer(0)->GetMetadata("doctor");
        for (char **item = items; item && *item; ++item) {
            if (STARTS_WITH(*item, "FINDING_"))
                kinds += QString::fromUtf8(*item).section(u'=', 1).section(u'|', 0, 0);
        }
        return kinds;
    }

    /// The values of a transmitter that has any, by the keys of the expectations.
    using Values = QMap<QString, QString>;

    /// What the driver gives, in the form of the expectations.
    struct Site
    {
        QString id;
        double x = NAN;
        double y = NAN;
        QList<Values> transmitters;
    };

    /// The text in the first of the fields with a value.
    static QString firstText(const OGRFeature &feature, const QString &prefix,
                             const QStringList &names)
    {
        for (const QString &name : names) {
            if (QString text = fieldText(feature, prefix + name); !text.isEmpty())
                return text;
        }
        return {};
    }

    static QList<Values> transmittersOf(const OGRFeature &feature)
    {
        static const QList<std::pair<QString, QStringList>> Fields = {
            {u"id"_s, {u"Sector ID"_s, u"Transmitter"_s, u"ANT-INDEX"_s}},
            {u"height"_s, {u"Height (m)"_s, u"HEIGHT"_s}},
            {u"azimuth"_s, {u"Azimuth (°)"_s, u"AZIMUTH"_s}},
            {u"tilt"_s, {u"Mechanical tilt"_s, u"DOWN-TILT"_s, u"Tilt (°)"_s}},
            {u"electricalTilt"_s, {u"Electrical tilt (°)"_s}},
            {u"beamWidth"_s, {u"Beam width (°)"_s}},
            {u"frequencyMHz"_s, {u"Frequency (MHz)"_s}},
            {u"technology"_s, {u"Technology"_s}},
        };
        QList<Values> transmitters;
        for (int n = 1; n <= 40; ++n) {
            Values values;
            for (const auto &[key, names] : Fields) {
                const QString text = firstText(feature, u"Transmitter-%1 "_s.arg(n), names);
                if (!text.isEmpty())
                    values.insert(key, text);
            }
            if (!values.isEmpty())
                transmitters += values;
        }
        return transmitters;
    }

    /// Whether a transmitter has all values that are expected.
    static bool agree(const Values &found, const QJsonObject &expected)
    {
        for (auto value = expected.begin(); value != expected.end(); ++value) {
            if (found.value(value.key()) != plainText(value.value()))
                return false;
        }
        return true;
    }

    static bool agree(const QList<Values> &found, const QJsonArray &expected)
    {
        return std::equal(
            found.begin(), found.end(), expected.begin(), expected.end(),
            [](const Values &a, const QJsonValue &b) { return agree(a, b.toObject()); });
    }

    static QList<Site> sitesOf(OGRLayer &layer)
    {
        QList<Site> sites;
        while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
            Site site;
            site.id = fieldText(*feature, u"Site ID"_s);
            if (const OGRGeometry *geometry = feature->GetGeometryRef()) {
                site.x = geometry->toPoint()->getX();
                site.y = geometry->toPoint()->getY();
            }
            site.transmitters = transmittersOf(*feature);
            sites += site;
        }
        return sites;
    }

    static bool agree(double found, const QJsonValue &expected)
    {
        if (!expected.isDouble())
            return std::isnan(found);
        return std::abs(found - expected.toDouble()) <=
               1e-5 * std::max(1.0, std::abs(expected.toDouble()));
    }

    /// The difference between a site as expected and those that were found; empty for none.
    static QString differenceOf(const QJsonObject &expected, const QList<Site> &sites)
    {
        const QString id = plainText(expected.value(u"id"_s));
        const QJsonArray transmitters = expected.value(u"transmitters"_s).toArray();
        QString nearest = u"no site \"%1\""_s.arg(id);
        for (const Site &site : sites) {
            const bool isPlaced =
                agree(site.x, expected.value(u"x"_s)) && agree(site.y, expected.value(u"y"_s));
            if (isPlaced && (id.isEmpty() || site.id == id) &&
                agree(site.transmitters, transmitters))
                return {};
            if (site.id != id && (!id.isEmpty() || !isPlaced))
                continue;
            nearest = u"site \"%1\" at %2 %3 with"_s.arg(site.id, QString::number(site.x, 'g', 9),
                                                         QString::number(site.y, 'g', 9));
            for (const Values &values : site.transmitters)
                nearest += u" "_s + QStringList(values.values()).join(u'/');
            nearest +=
                u" instead of "_s +
                QString::fromUtf8(QJsonDocument(transmitters).toJson(QJsonDocument::Compact));
        }
        return nearest;
    }

    static QString differenceOfSites(const QJsonObject &table)
    {
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = open(table, "site:");
        if (!dataset)
            return u"cannot be opened: "_s + warnings.texts.join(u' ');
        if (QString difference = differenceOfHeader(table, *dataset->GetLayer(0));
            !difference.isEmpty())
            return difference;
        const QString system = QString::fromUtf8(dataset->GetLayer(0)->GetMetadataItem("epsg"));
        if (table.contains(u"epsg"_s) && system != table.value(u"epsg"_s).toString())
            return u"declares system "_s + system;
        const QList<Site> sites = sitesOf(*dataset->GetLayer(0));
        const int expected = table.value(u"counts"_s).toObject().value(u"sites"_s).toInt();
        for (const auto &site : table.value(u"sites"_s).toArray()) {
            QString difference = differenceOf(site.toObject(), sites);
            if (!difference.isEmpty())
                return difference;
        }
        if (sites.size() != expected)
            return u"%1 sites instead of %2"_s.arg(sites.size()).arg(expected);
        return {};
    }

    QSet<QString> m_notYet;
};

QTEST_GUILESS_MAIN(tst_RealTables)
#include "tst_RealTables.moc"
