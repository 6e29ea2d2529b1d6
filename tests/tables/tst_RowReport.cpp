#include "RealTables.h"

#include <QMap>

#include <numeric>

using namespace Qt::StringLiterals;

/// The fate of every row of a table, and the rows to be corrected.
class tst_RowReport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        QVERIFY(m_folder.isValid());
        m_folder.write("map.json", R"({"version": 1, "corrections": [{"cure": "swap", "rows":
                                       [{"row": 3, "x": "48.7", "y": "2.4"}]}]})");
    }

    void reportsFates_data()
    {
        QTest::addColumn<QByteArray>("prefix");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArrayList>("fates");

        QTest::newRow("rows of sites, total, repeated header")
            << QByteArray("site:")
            << QByteArray("Title EPSG:4326\n\nSite ID;Longitude;Latitude;Height\nA;2.3;48.8;30\n"
                          "SITE ID;LONGITUDE;LATITUDE;HEIGHT\n\nB;2.4;north;25\nC;2.5;48.7;20\n"
                          "Total;;;3\n")
            << QByteArrayList{"4 used A 4", "5 left out: the row repeats the header",
                              QByteArray("7 left out B Latitude: the coordinate \"north\" ") +
                                  "cannot be read: it holds no number",
                              "8 used C 8", "9 left out: a row of sums is left out"};
        QTest::newRow("rows of transmitters")
            << QByteArray("site:")
            << QByteArray("Site ID;Longitude;Latitude;Azimuth;Height\nA;2.3;48.8;0;30\n"
                          "A;2.3;48.8;1200;30\nA;2.3;48.8;240;30\nB;;;0;20\nB;;;120;20\n"
                          "C;;;0;20\nC;2.5;48.7;90;20\n")
            << QByteArrayList{"2 used A 2",
                              QByteArray("3 left out A Azimuth: the azimuth \"1200\" cannot ") +
                                  "be used: the transmitter is left out",
                              "4 merged A 2",
                              "5 left out B Longitude: the coordinate is empty",
                              "6 left out B: the site \"B\" has no position",
                              "7 used C 7 Longitude: the coordinate is empty",
                              "8 merged C 7"};
        QTest::newRow("guesses: grouped thousands")
            << QByteArray("site:s_srs=2154,")
            << QByteArray("Site ID;X;Y\nA;652 000,5;6862000\nB;653000;6863000\n")
            << QByteArrayList{"2 used A 2 X: the coordinate \"652 000,5\" is read as 652000.5",
                              "3 used B 3"};
        QTest::newRow("guesses: the letter O")
            << QByteArray("site:")
            << QByteArray("Nom du site;Longitude;Latitude\nA;2\u00B030'00\"O;48\u00B030'00\"N\n"
                          "B;2\u00B030'00\"E;48\u00B030'00\"N\n")
            << QByteArrayList{"2 used A 2 Longitude: the letter O in the coordinate "
                              "\"2\u00B030'00\"O\" is read as W",
                              "3 used B 3"};
        QTest::newRow("corrections of the mapping")
            << QByteArray("site:columns=map.json,")
            << QByteArray("Site ID;Longitude;Latitude\nA;2.3;48.8\nB;48.7;2.4\n")
            << QByteArrayList{"2 used A 2", "3 used B 3 Longitude: repaired: the position "
                                            "\"48.7 2.4\" is corrected to 2.4 48.7"};
        QTest::newRow("links")
            << QByteArray("link:")
            << QByteArray("Link,Site A,Lon A,Lat A,Site B,Lon B,Lat B\nL1,A,2.3,48.8,B,2.4,48.9\n"
                          ",A,2.3,48.8,C,,\n")
            << QByteArrayList{"2 used L1 2", "3 left out A - C Lon B: the coordinate is empty"};
        QTest::newRow("transmitters in another table, with its header again and sums")
            << QByteArray("site:sectors=second.csv,")
            << QByteArray("Site ID;Longitude;Latitude\nA;2.3;48.8\nB;2.4;48.9\nC;2.5;48.7\n")
            << QByteArrayList{"2 used A 2",   "3 used B 3",
                              "4 used C 4",   "2 merged A 2",
                              "3 merged B 3", "4 left out: the row repeats the header",
                              "5 merged C 4", "6 left out: a row of sums is left out"};
    }
    void reportsFates()
    {
        QFETCH(QByteArray, prefix);
        QFETCH(QByteArray, text);
        const Warnings warnings;
        m_folder.write("table.csv", text);
        m_folder.write("second.csv", "Site;Azimuth;Height\nA;0;30\nB;120;25\n"
                                     "SITE;AZIMUTH;HEIGHT\nC;240;20\nTotal;;75\n");
        const GDALDatasetUniquePtr dataset = m_folder.open(prefix, "table.csv");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(QLatin1Char(' '))));

        QTEST(fatesIn(*dataset), "fates");
    }

    void opensCorrectedRejects_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("mistake");
        QTest::addColumn<QByteArray>("correction");
        QTest::addColumn<QByteArray>("rejects");

        QTest::newRow("semicolons, title, units, quotation marks, sums")
            << QByteArray(
                   "Sites of the region\nSite "
                   "ID;Longitude;Latitude;Height;Remark\n;\u00B0;\u00B0;ft;\n"
                   "A;2.3;48.8;30;\nB;2.4;?;25;\"a;b\"\"c\"\nC;2.5;;5;6\" pipe\nTotal;;;60;\n")
            << QByteArray("?") << QByteArray("48.9")
            << QByteArray("Sites of the region;;;;\nSite ID;Longitude;Latitude;Height;Remark\n"
                          ";\u00B0;\u00B0;ft;\nB;2.4;?;25;\"a;b\"\"c\"\nC;2.5;;5;6\" pipe\n");
        QTest::newRow("a known table without a header")
            << QByteArray("GSM,260,99,5001,7340033,0,20.60555,50.87156,1000,3,1,14590,16190,0\n"
                          "LTE,260,99,5101,7340944,17,20.49166,50.94788,1350,4,1,14590,16190,0\n"
                          "GSM,260,99,5001,7342766,51,0,0,2050,6,1,14590,16190,0\n")
            << QByteArray("51,0,0") << QByteArray("51,20.6,50.9")
            << QByteArray("Technology,Column 2,Column 3,Column 4,Sector ID,Column 6,Longitude,"
                          "Latitude,Column 9,Column 10,Column 11,Column 12,Column 13,Column 14\n"
                          "GSM,260,99,5001,7342766,51,0,0,2050,6,1,14590,16190,0\n");
    }
    void opensCorrectedRejects()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, mistake);
        QFETCH(QByteArray, correction);
        const Warnings warnings;
        m_folder.write("source.csv", text);
        const GDALDatasetUniquePtr source = m_folder.open("site:", "source.csv");
        QVERIFY2(source, qPrintable(warnings.texts.join(QLatin1Char(' '))));
        QByteArray rejects;
        for (const QByteArray &line : valuesOf(*source, "REJECTS", "line"))
            rejects += line + '\n';
        QTEST(rejects, "rejects");

        m_folder.write("rejects.csv", rejects.replace(mistake, correction));
        const GDALDatasetUniquePtr corrected = m_folder.open("site:", "rejects.csv");
        QVERIFY2(corrected, qPrintable(warnings.texts.join(QLatin1Char(' '))));
        QCOMPARE(corrected->GetLayer(0)->GetMetadataItem("USED", "rows"), "1");
    }

    void accountsForEveryRow_data() { realtables::addTables({}); }
    void accountsForEveryRow()
    {
        QFETCH(QJsonObject, table);
        const Warnings warnings;
        const bool areLinks = table.value(u"kind"_s) == u"links"_s;
        const GDALDatasetUniquePtr dataset = realtables::open(table, areLinks ? "link:" : "site:");
        if (!dataset)
            QSKIP(qPrintable(warnings.texts.join(u' ')));
        const RowCounts found = rowsOf(*dataset);
        const QJsonObject expected = table.value(u"counts"_s).toObject();

        char **counts = dataset->GetLayer(0)->GetMetadata("rows");
        const auto count = [counts](const char *item) {
            return QByteArray(CSLFetchNameValueDef(counts, item, "0")).toInt();
        };
        for (const auto &[prefix, fates] : {std::pair(QByteArray(), found.fates),
                                            std::pair(QByteArray("SECOND_"), found.secondFates)}) {
            QCOMPARE(count(prefix + "USED"), fates.value(u"used"_s));
            QCOMPARE(count(prefix + "MERGED"), fates.value(u"merged"_s));
            QCOMPARE(count(prefix + "LEFT_OUT"), fates.value(u"left out"_s));
            QCOMPARE(count(prefix + "ROWS"), sumOf(fates));
        }
        if (expected.contains(u"rows"_s))
            QCOMPARE(sumOf(found.fates) - found.withoutData, expected.value(u"rows"_s).toInt());
        if (expected.contains(u"sectorRows"_s))
            QCOMPARE(sumOf(found.secondFates), expected.value(u"sectorRows"_s).toInt());
        const bool isUnderstood = !realtables::notYet().contains(table.value(u"file"_s).toString());
        if (expected.contains(u"placed"_s) && isUnderstood)
            QCOMPARE(found.fates.value(u"used"_s), expected.value(u"placed"_s).toInt());
    }

private:
    using Fates = QMap<QString, int>;

    /// Rows of a table by fate, from the report.
    struct RowCounts
    {
        Fates fates;
        Fates secondFates;   ///< of the table that completes the other
        int withoutData = 0; ///< sums and repeated headers
    };

    static int sumOf(const Fates &fates) { return std::accumulate(fates.begin(), fates.end(), 0); }

    static RowCounts rowsOf(GDALDataset &dataset)
    {
        RowCounts counts;
        OGRLayer *report = dataset.ExecuteSQL("REPORT", nullptr, nullptr);
        const QByteArray name = dataset.GetLayer(0)->GetName();
        GIntBig rows = 0;
        for (const OGRFeatureUniquePtr &row : *report) {
            const bool isSecond = name != row->GetFieldAsString("table");
            ++rows;
            ++(isSecond ? counts.secondFates
                        : counts.fates)[realtables::fieldText(*row, u"fate"_s)];
            const QString reasons = QString::fromUtf8(row->GetFieldAsString("reasons"));
            counts.withoutData += !isSecond && (reasons.contains(u"a row of sums"_s) ||
                                                reasons.contains(u"the row repeats the header"_s));
        }
        if (report->GetFeatureCount() != rows)
            counts = {};
        dataset.ReleaseResultSet(report);
        return counts;
    }

    static QByteArrayList valuesOf(GDALDataset &dataset, const char *statement, const char *field)
    {
        QByteArrayList values;
        OGRLayer *layer = dataset.ExecuteSQL(statement, nullptr, nullptr);
        for (const OGRFeatureUniquePtr &feature : *layer)
            values += feature->GetFieldAsString(field);
        dataset.ReleaseResultSet(layer);
        return values;
    }

    /// Each row as "number fate site first row column: reason".
    static QByteArrayList fatesIn(GDALDataset &dataset)
    {
        QByteArrayList fates;
        OGRLayer *layer = dataset.ExecuteSQL("REPORT", nullptr, nullptr);
        for (const OGRFeatureUniquePtr &row : *layer) {
            QByteArray text;
            for (const char *field : {"row", "fate", "site", "first_row"})
                text += QByteArray(row->GetFieldAsString(field)) + ' ';
            char **reasons = row->GetFieldAsStringList(row->GetFieldIndex("reasons"));
            char **columns = row->GetFieldAsStringList(row->GetFieldIndex("columns"));
            for (int i = 0; i < CSLCount(reasons); ++i)
                text += QByteArray(columns[i]) + ": " + reasons[i];
            fates += text.simplified().replace(" :", ":");
        }
        dataset.ReleaseResultSet(layer);
        return fates;
    }

    TableFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_RowReport)
#include "tst_RowReport.moc"
