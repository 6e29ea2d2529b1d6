#include "RealTables.h"
#include "support/Cases.h"

#include <QMap>
#include <QTest>

using namespace Qt::StringLiterals;

/// Tables whose columns a mapping file states.
class tst_MappedTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        GDALAllRegister();
    }

    void followsWhatIsStated_data()
    {
        const Cases<QByteArray, QByteArray, QString, QString> row(
            {"table", "mapping", "sites", "problem"});
        const QByteArray tall = "Site,Lon,Lat,Azimuth,Bearing,Height\nS,2,48,10,70,30\n"
                                "S,2,48,20,80,31\nT,3,49,5,6,32\n";
        const char *const asItIs = "S@2,48 10/30 20/31|T@3,49 5/32";
        row("nothing", tall, "", asItIs);
        row("another column", tall, R"("azimuth": "Bearing")", "S@2,48 70/30 80/31|T@3,49 6/32");
        row("in another case", tall, R"("azimuth": "BEARING")", "S@2,48 70/30 80/31|T@3,49 6/32");
        row("no column", tall, R"("antennaHeight": null)", "S@2,48 10/ 20/|T@3,49 5/");
        row("no transmitters", tall, R"("azimuth": null)", "S@2,48|S@2,48|T@3,49");
        row("a second role", tall, R"("siteName": "Azimuth")", "S@2,48 70/30 80/31|T@3,49 6/32");
        row("a column that is gone", tall, R"("azimuth": "AZ", "antennaHeight": ["Height", "H2"])",
            asItIs,
            "the mapping file \"t.csv.columns.json\" names columns that the table does not have, "
            "so "
            "that their roles are recognized: \"H2\", \"AZ\"");
        row("unknown role", tall, R"("azimut": "Bearing")", asItIs,
            "the mapping file \"t.csv.columns.json\" names roles that are not known: \"azimut\"");
        row("two roles", tall, R"("siteId": "Site", "siteName": "Site")", asItIs,
            "the mapping file \"t.csv.columns.json\" names columns more than once, of which only "
            "the "
            "first role holds: \"Site\"");
        row("broken", tall, R"("azimuth": )", asItIs,
            "the mapping file \"t.csv.columns.json\" is not used: its JSON is not valid in line 1");
        row("strange coordinates", "A,B,C,Azimuth\nS,2,48,10\n",
            R"("x": "B", "y": "C", "siteId": "A")", "S@2,48 10/");
        row("one strange coordinate", "A,Longitude,C,Azimuth\nS,2,48,10\n",
            R"("y": "C", "siteId": "A")", "S@2,48 10/");
        row("parts", "Site,D,M,S,H,E,W\nS,48,30,36,N,2,W\n",
            R"("y": ["D", "M", "S", "H"], "x": ["E", null, null, "W"])", "S@-2,48.51");
        row("a pair", "Site,P,Lon,Lat\nS,\"48.5, 2.5\",5,6\n", R"("pair": "P")", "S@2.5,48.5");
        row("by transmitter", "Site,Lon,Lat,Dir A,Dir B,Height 1,Height 2\nS,2,48,10,20,30,31\n",
            R"("azimuth": ["Dir A", "Dir B"])", "S@2,48 10/30 20/31");
        row("one missing", "Site,Lon,Lat,Dir A,Dir B,H\nS,2,48,10,20,30\n",
            R"("azimuth": ["Dir A", "Dir B"], "antennaHeight": [null, "H"])", "S@2,48 10/ 20/30");
        row("header row", "Site,Lon,Lat\nx,y,z\nS,2,48\n",
            R"("siteId": "x", "x": "y", "y": "z"}, "headerRows": [2)", "S@2,48");
        row("header rows", "a,b,b\nx,y,z\nS,2,48\n",
            R"("siteId": "a x", "x": "b y", "y": "b z"}, "headerRows": [1, 2)", "S@2,48");
        row("header row beyond the end", tall, R"("azimuth": "Bearing"}, "headerRows": [50)",
            "S@2,48 70/30 80/31|T@3,49 6/32",
            "the mapping file \"t.csv.columns.json\" names header rows that the table does not "
            "have: "
            "the header is recognized");
        row("header rows without a row below", "Site,Lon,Lat\nS,2,48\n",
            R"(}, "headerRows": [1, 2)", "S@2,48",
            "the mapping file \"t.csv.columns.json\" names header rows");
        row("no header", "a1,2,48,q\nb2,3,49,q\n",
            R"("siteId": "Column 1", "x": "Column 2", "y": "Column 3"}, "headerRows": [)",
            "a1@2,48|b2@3,49");
        row("swapped", "Site,Lon,Lat\nS,48,2\n", R"(}, "axes": "swapped", "headerRows": [1)",
            "S@2,48");
        addCorrections(row);
    }
    void followsWhatIsStated()
    {
        QFETCH(QByteArray, mapping);
        QFETCH(QByteArray, table);
        QFETCH(QString, problem);
        m_folder.write("t.csv", table);
        const bool hasRows = mapping.contains("headerRows");
        m_folder.write("t.csv.columns.json",
                       "{\"version\": 1, \"roles\": {" + mapping + (hasRows ? "]}" : "}}"));
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = m_folder.open("site:", "t.csv");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(u'\n')));

        QTEST(sitesOf(*dataset), "sites");
        const QString problems = problemsOf(*dataset->GetLayer(0)).join(u'\n');
        QVERIFY2(problem.isEmpty() ? !problems.contains(u"mapping file"_s)
                                   : problems.contains(problem),
                 qPrintable(problems));
    }

    void takesTheEndsOfLinksThatAreStated()
    {
        m_folder.write("l.csv", "N;P;Q;R;S;T\nL;2;48;49;3;38\n");
        m_folder.write("l.csv.columns.json",
                       R"({"version": 1, "kind": "links", "roles": {"xA": "P", "yA": "Q",
                           "xB": "R", "yB": "S", "linkName": "N", "frequency": "T"},
                           "corrections": [{"cure": "swap", "rows":
                                            [{"row": 2, "x": "49", "y": "3"}]}]})");
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = m_folder.open("link:", "l.csv");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(u'\n')));
        OGRLayer &layer = *dataset->GetLayer(0);
        const OGRFeatureUniquePtr link(layer.GetNextFeature());

        QCOMPARE(QString::fromStdString(link->GetGeometryRef()->exportToWkt()),
                 u"LINESTRING (2 48,3 49)"_s);
        QVERIFY(QByteArray(*layer.GetMetadata("json:MAPPING")).contains("\"frequency\": \"T\""));
    }

    void showsTheColumnsOfARefusedTable_data()
    {
        const Cases<QByteArray, QByteArray, QString, QString> row(
            {"table", "stated", "roles", "refusal"});
        const QByteArray strange = "N;P;Q;R;S\nL;2;48;3;49\nM;2;48;4;49\n";
        row("strange names", strange, "", "",
            "no columns with coordinates of both ends were recognized");
        row("half a position", strange, R"("xA": "P", "yB": "S")", "xA=P yB=S", "both ends");
        row("one end", "Near lon;Near lat;R;S\n2;48;3;49\n2;48;4;49\n", R"("xB": "R")",
            "xA=Near lon yA=Near lat xB=R", "those of end B are missing");
        row("no header", "2;48;3;49\n2;48;4;49\n", "", "", "no header was found");
        row("stated names", "N;P;Q\nL;a;b\nM;a;c\n", R"("siteIdA": "P", "siteNameB": "Q")",
            "siteIdA=P siteNameB=Q", "the ends of the links are only named (P; Q)");
    }
    void showsTheColumnsOfARefusedTable()
    {
        QFETCH(QByteArray, table);
        QFETCH(QByteArray, stated);
        QFETCH(QString, refusal);
        m_folder.write("r.csv", table);
        m_folder.write("r.csv.columns.json",
                       "{\"version\": 1, \"kind\": \"links\", \"roles\": {" + stated + "}}");
        const QByteArray connection = "link:" + m_folder.path("r.csv");
        const Warnings warnings;
        QVERIFY(!m_folder.open("link:", "r.csv"));
        QVERIFY2(warnings.texts.join(u'\n').contains(refusal),
                 qPrintable(warnings.texts.join(u'\n')));

        CPLStringList options;
        options.SetNameValue("OVERVIEW", "YES");
        const GDALDatasetUniquePtr overview(
            GDALDataset::Open(connection, GDAL_OF_VECTOR, nullptr, options.List()));

        QVERIFY(overview);
        QCOMPARE(overview->GetLayerCount(), 0);
        QStringList roles;
        for (char **item = overview->GetMetadata("roles"); item && *item; ++item) {
            const QString value = QString::fromUtf8(*item).section(u'=', 1);
            if (!value.startsWith(u"linkName"_s))
                roles += value.section(u'|', 0, 0) + u'=' + value.section(u'|', 2, 2);
        }
        QTEST(roles.join(u' '), "roles");
        char **excerpt = overview->GetMetadata("json:EXCERPT");
        QVERIFY(excerpt && QByteArray(*excerpt).contains("\"cells\""));
    }

    void keepsWhatItRecognised_data()
    {
        const Cases<QByteArray, QByteArray, QByteArray> row({"kind", "file", "second"});
        row("tall", "site", "tall_lte_export.csv");
        row("tall by name", "site", "tall_drive_test.txt");
        row("numbered", "site", "wide_azi0.csv");
        row("equal names", "site", "wide_repeated_names.csv");
        row("lists", "site", "lists_slash.csv");
        row("two header rows", "site", "wide_two_headers.csv");
        row("titles", "site", "header_titles.csv");
        row("without a header", "site", "headerless_cells.csv");
        row("in parts", "site", "values_dms_columns.csv");
        row("pair", "site", "values_pair.csv");
        row("zones of UTM", "site", "values_utm_zones.csv");
        row("by band", "site", "wide_bands.csv");
        row("lists by band", "site", "lists_bands.csv");
        row("two sheets", "site", "book_sites_transmitters.xlsx");
        row("two files", "site", "joined_nodes.csv", "joined_sectors.csv");
        row("links", "link", "links_tx_rx_pl.csv");
        row("numbered ends", "link", "links_numbered.csv");
        row("named ends", "link", "links_named.csv", "links_named_sites.csv");
        row("links in zones of UTM", "link", "links_utm_zones.csv");
        row("links without a header", "link", "links_headerless.csv");
    }
    void keepsWhatItRecognised()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, second);
        for (const QByteArray &name : {file, second}) {
            if (!name.isEmpty())
                m_folder.write(name, readFile(QStringLiteral(VLT_REAL_TABLES "/") +
                                              QString::fromLatin1(name)));
        }
        const QByteArray prefix = kind + ':';
        const QByteArray options =
            second.isEmpty() ? second : (kind == "site" ? "sectors=" : "sites=") + second + ',';
        GDALDatasetUniquePtr dataset = m_folder.open(prefix + options, file);
        QVERIFY(dataset);
        const QStringList before = contentOf(*dataset);
        m_folder.write(file + ".columns.json", *dataset->GetLayer(0)->GetMetadata("json:MAPPING"));
        dataset = m_folder.open(prefix, file);
        QVERIFY(dataset);

        QCOMPARE(contentOf(*dataset), before);
        const char *used = dataset->GetLayer(0)->GetMetadataItem("MAPPING", "roles");
        QCOMPARE(QByteArray(used), m_folder.path(file + ".columns.json"));
    }

    void curesMistakes_data() { realtables::addTables(u"sites"_s); }
    void curesMistakes()
    {
        QFETCH(QJsonObject, table);
        const QJsonArray expected = table.value(u"cured"_s).toArray();
        if (expected.isEmpty())
            return;
        const Warnings warnings;
        GDALDatasetUniquePtr dataset = realtables::open(table, "site:");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(u'\n')));
        m_folder.write("cured.json", curesOf(*dataset->GetLayer(0)));
        table.insert(u"open"_s,
                     QJsonObject{{u"COLUMNS"_s, QString::fromUtf8(m_folder.path("cured.json"))}});
        dataset = realtables::open(table, "site:");
        QVERIFY(dataset);
        OGRLayer &layer = *dataset->GetLayer(0);
        QMap<QString, QString> places;
        while (const OGRFeatureUniquePtr site{layer.GetNextFeature()}) {
            const OGRGeometry *geometry = site->GetGeometryRef();
            if (!geometry)
                continue;
            const QString id = realtables::fieldText(*site, u"Site ID"_s);
            places.insert(id.isEmpty() ? realtables::fieldText(*site, u"Site"_s) : id,
                          placeText(geometry->toPoint()->getX(), geometry->toPoint()->getY()));
        }

        for (const auto &site : expected) {
            QCOMPARE(places.value(site[u"id"_s].toString()),
                     placeText(site[u"x"_s].toDouble(), site[u"y"_s].toDouble()));
        }
        QCOMPARE(places.size(), table.value(u"counts"_s).toObject().value(u"sites"_s).toInt());
        QCOMPARE(layer.GetMetadataItem("COUNT", "doctor"), "0");
    }

    void quotesTheWrongEndOfALink()
    {
        m_folder.write("ends.csv", "Link,Lon A,Lat A,Lon B,Lat B\nK,2.3,48.8,2.4,48.9\n"
                                   "L,2.31,48.81,48.92,2.41\nM,2.32,48.82,2.42,48.93\n");
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = m_folder.open("link:", "ends.csv");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(u'\n')));

        QCOMPARE(dataset->GetLayer(0)->GetMetadataItem("CORRECTION_1", "doctor"),
                 R"([{"cure":"swap","rows":[{"row":3,"x":"48.92","y":"2.41"}]}])");
    }

private:
    static void addCorrections(const Cases<QByteArray, QByteArray, QString, QString> &row)
    {
        const auto corrections = [](const QByteArray &list) {
            return "}, \"corrections\": [" + list + "], \"headerRows\": [1";
        };
        const QByteArray swapsThird =
            R"({"cure": "swap", "rows": [{"row": 3, "x": "49", "y": "3"}]})";
        row("a row exchanged", "Site,Lon,Lat\nS,2,48\nT,49,3\n", corrections(swapsThird),
            "S@2,48|T@3,49");
        row("a row that was corrected in the table", "Site,Lon,Lat\nS,2,48\nT,3,49\n",
            corrections(swapsThird), "S@2,48|T@3,49");
        row("another row", "Site,Lon,Lat\nS,2,48\nU,49,3\nT,49,3\n", corrections(swapsThird),
            "S@2,48|U@3,49|T@49,3");
        row("a row of a site exchanged", "Site,Lon,Lat,Azimuth\nS,3,49,10\nS,49,3,20\n",
            corrections(swapsThird), "S@3,49 10/ 20/");
        row("axes and a row exchanged", "Site,Lon,Lat\nS,48,2\nT,3,49\n",
            QByteArray("}, \"axes\": \"swapped\"") + corrections(swapsThird).mid(1),
            "S@2,48|T@3,49");
        row("a latitude beyond the pole", "Site,Lon,Lat\nS,-45,110\n",
            corrections(R"({"cure": "swap", "rows": [{"row": 2, "x": "-45", "y": "110"}]})"),
            "S@110,-45");
        row("signs and decimal marks", "Site,Lon,Lat\nS,12.3,-4.58\n",
            corrections(R"({"cure": "scaleX", "factor": 0.1},
                           {"cure": "scaleY", "factor": 10, "rows":
                            [{"row": 2, "x": "12.3", "y": "-4.58"}]},
                           {"cure": "negateX"}, {"cure": "negate"})"),
            "S@1.23,45.8");
        row("a pair exchanged", "Site,P\nS,\"2.5, 48.5\"\n",
            corrections(R"({"cure": "swap", "rows": [{"row": 2, "x": "2.5, 48.5"}]})"),
            "S@2.5,48.5");
        row("a hemisphere in parts", "Site,Lat,LatH,Lon D,Lon M,Lon H\nS,48,N,2,30,E\n",
            R"("x": ["Lon D", "Lon M", null, "Lon H"], "y": ["Lat", null, null, "LatH"])" +
                corrections(R"({"cure": "negateX", "rows":
                                [{"row": 2, "x": "2 30 E", "y": "48 N"}]})"),
            "S@-2.5,48");
    }

    static QString placeText(double x, double y)
    {
        return QString::number(x, 'f', 6) + u' ' + QString::number(y, 'f', 6);
    }

    /// A mapping with the cures of all mistakes in the positions of a table.
    static QByteArray curesOf(OGRLayer &layer)
    {
        QByteArray mapping = "{\"version\": 1";
        char **items = layer.GetMetadata("doctor");
        for (char **item = items; item && *item; ++item) {
            const QByteArray value = QByteArray(*item).mid(QByteArray(*item).indexOf('=') + 1);
            const QByteArray cure = value.split('|').value(1);
            if (cure == "swapAxes")
                mapping += ", \"axes\": \"swapped\"";
            else if (cure.startsWith("sourceSrs="))
                mapping += ", \"sourceSrs\": \"" + cure.mid(10) + '"';
            else if (STARTS_WITH(*item, "CORRECTION_"))
                mapping += ", \"corrections\": " + value;
        }
        return mapping + '}';
    }

    /// The roles without their evidence, the problems and all features.
    static QStringList contentOf(GDALDataset &dataset)
    {
        OGRLayer &layer = *dataset.GetLayer(0);
        QStringList content = problemsOf(layer);
        for (char **item = layer.GetMetadata("roles"); item && *item; ++item) {
            if (!QByteArray(*item).startsWith("MAPPING="))
                content += QString::fromUtf8(*item).section(u'|', 0, 2);
        }
        while (const OGRFeatureUniquePtr feature{layer.GetNextFeature()}) {
            for (int i = 0; i < feature->GetFieldCount(); ++i)
                content += QString::fromUtf8(feature->GetFieldDefnRef(i)->GetNameRef()) + u'=' +
                           QString::fromUtf8(feature->GetFieldAsString(i));
            if (const OGRGeometry *geometry = feature->GetGeometryRef())
                content += QString::fromStdString(geometry->exportToWkt());
        }
        return content;
    }

    /// The sites with azimuths and heights of their transmitters.
    static QString sitesOf(GDALDataset &dataset)
    {
        QStringList sites;
        OGRLayer &layer = *dataset.GetLayer(0);
        while (const OGRFeatureUniquePtr site{layer.GetNextFeature()}) {
            const auto text = [&site](const QByteArray &name) {
                const int field = site->GetFieldIndex(name);
                return field < 0 ? QString() : QString::fromUtf8(site->GetFieldAsString(field));
            };
            const OGRGeometry *geometry = site->GetGeometryRef();
            QString line = text("Site ID");
            if (geometry)
                line +=
                    u"@%1,%2"_s.arg(geometry->toPoint()->getX()).arg(geometry->toPoint()->getY());
            for (int n = 1; n <= 2; ++n) {
                const QByteArray prefix = "Transmitter-" + QByteArray::number(n);
                const QString values =
                    text(prefix + " Azimuth (\u00B0)") + u'/' + text(prefix + " Height (m)");
                if (values.size() > 1)
                    line += u' ' + values;
            }
            sites += line;
        }
        return sites.join(u'|');
    }

    TableFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_MappedTables)
#include "tst_MappedTables.moc"
