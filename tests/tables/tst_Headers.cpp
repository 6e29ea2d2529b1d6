#include "DriverTesting.h"
#include "support/Cases.h"

#include <QtTest>

namespace {

constexpr char Layout[] = R"({"layouts": [{"name": "inventory", "kind": "sites",
    "columns": ["siteId", "siteName", null, "longitude", "latitude", "azimuth"],
    "tests": {"1": {"words": ["MAST", "Tower"]}, "3": {"min": -180, "max": 180},
              "4": {"min": -90, "max": 90}, "5": {"min": 0, "max": 360, "whole": true}}}]})";

} // namespace

/// The rows of a table that name its columns, and those that are no data.
class tst_Headers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        m_folder.write("words.json", Layout);
        qputenv("VLT_TABLE_VOCABULARY", m_folder.path("words.json"));
        GDALAllRegister();
    }

    void joinsTheRowsOfAHeader_data()
    {
        const Cases<QByteArray, QString, QString, int, QByteArray> row(
            {"text", "rows", "names", "features", "prefix"});
        row("groups in the first of their columns",
            "Site;;Sector 1;;Sector 2;;\n"
            "ID;X;Azimuth;Height;Azimuth;Height;Remarks\n"
            "a;1;0;30;120;31;good\n",
            "1,2",
            "Site ID|Site X|Sector 1 Azimuth|Sector 1 Height|Sector 2 Azimuth|Sector 2 Height|"
            "Remarks",
            1);
        row("groups in each of their columns, unknown ones",
            "Alpha;Alpha;Beta;Beta;;\nAzimuth;Height;Azimuth;Height;X;Y\n0;30;120;31;1;2\n", "1,2",
            "Alpha Azimuth|Alpha Height|Beta Azimuth|Beta Height|X|Y", 1);
        row("names merged with the cells below them",
            "Site ID;Longitude;Latitude;Sector 1;;Sector 2;\n"
            ";;;Azimuth;Height;Azimuth;Height\n"
            "a;2;48;0;30;120;31\nb;3;48;0;30;120;31\n",
            "1,2",
            "Site ID|Longitude|Latitude|Sector 1 Azimuth|Sector 1 Height|Sector 2 Azimuth|"
            "Sector 2 Height",
            2);
        row("sectors below their values, merged names repeated",
            "Site;Lon;Lat;Azimuth;;Height;\nSite;Lon;Lat;Sector 1;Sector 2;Sector 1;Sector 2\n"
            "a;2;48;0;120;30;31\n",
            "1,2", "Site|Lon|Lat|Azimuth Sector 1|Azimuth Sector 2|Height Sector 1|Height Sector 2",
            1);
        row("ends of links",
            ";Near end;;Far end;;Path\nLink;Longitude;Latitude;Longitude;Latitude;Length (km)\n"
            "L1;2;48;3;48;74\n",
            "1,2",
            "Link|Near end Longitude|Near end Latitude|Far end Longitude|Far end Latitude|"
            "Path Length (km)",
            1, "link:");
        row("the same names in other words, then units",
            "SITE_ID;NAME;LAT;LON;AZ\nIdentifier of the site;Name;Latitude;Longitude;Azimuth\n"
            ";;deg;deg;deg\na;Mast;48;2;0\nb;Pole;48;3;0\n",
            "1", "SITE_ID|NAME|LAT|LON|AZ", 2);
        row("a site without values", "Site;X;Y;Azimuth\nMast;N/A;N/A;N/A\na;1;2;3\n", "1",
            "Site|X|Y|Azimuth", 2);
        row("a title of two cells", "Network north;;;Edition 7\nSite;X;Y;Azimuth\na;1;2;3\n", "2",
            "Site|X|Y|Azimuth", 1);
        row("a title beside equal names", "Network north;;;\nname;X;Y;name\na;1;2;b\n", "2",
            "name|X|Y|name_2", 1);
        row("a row of data that could be names",
            "Site;X;Y;Tower;;Owner\nMast;;;Pole;Site;Station\nb;1;2;c;d;e\n", "1",
            "Site|X|Y|Tower|Column 5|Owner", 2);
        row("groups over a layout that is known",
            "Site;;;Sector;;\n"
            "Site ID;Longitude;Latitude;Transmitter-1 Azimuth;Transmitter-2 Azimuth\n"
            "a;2;48;0;120\n",
            "2", "Site ID|Longitude|Latitude|Transmitter-1 Azimuth|Transmitter-2 Azimuth", 1);
    }
    void joinsTheRowsOfAHeader()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, rows);
        QFETCH(QString, names);
        QFETCH(int, features);
        QFETCH(QByteArray, prefix);
        m_folder.write("t.csv", text);
        const GDALDatasetUniquePtr dataset =
            m_folder.open(prefix.isEmpty() ? "site:" : prefix, "t.csv");
        QVERIFY(dataset);
        OGRLayer *layer = dataset->GetLayer(0);
        QCOMPARE(QString::fromUtf8(layer->GetMetadataItem("header_rows")), rows);
        const QStringList found = fieldNames(*layer);
        QCOMPARE(found.mid(found.size() - names.count(u'|') - 1).join(u'|'), names);
        QCOMPARE(layer->GetFeatureCount(), features);
    }

    void readsTheRowOfUnits_data()
    {
        const Cases<QByteArray, int, double> row({"text", "features", "height"});
        const QByteArray header = "Site ID;Longitude;Latitude;Azimuth;Height;EIRP\n";
        const QByteArray data = "a;2;48;0;100;63\nb;3;48;120;50;63\n";
        row("feet", header + ";deg;deg;deg;ft;dBm\n" + data, 2, 30.48);
        row("in brackets, with the surface",
            header + ";(\u00B0);(\u00B0);[\u00B0];[ft AGL];\n" + data, 2, 30.48);
        row("repeated with the header",
            header + ";deg;deg;deg;ft;dBm\n" + data + header +
                ";deg;deg;deg;ft;dBm\nc;4;48;0;50;63\n",
            3, 30.48);
        row("metres", header + ";WGS84 deg;deg;deg;m;\n" + data, 2, 100);
        row("a row of data", header + "a;2;48;0;100;m\n", 1, 100);
        row("below groups",
            "Site;;;Sector 1;;\nID;Lon;Lat;Azimuth;Height;EIRP\n;\u00B0;\u00B0;\u00B0;ft;dBm\n" +
                data,
            2, 30.48);
    }
    void readsTheRowOfUnits()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, features);
        QFETCH(double, height);
        m_folder.write("t.csv", text);
        const GDALDatasetUniquePtr dataset = m_folder.open("site:", "t.csv");
        QVERIFY(dataset);
        OGRLayer *layer = dataset->GetLayer(0);
        QCOMPARE(layer->GetFeatureCount(), features);
        const OGRFeatureUniquePtr feature{layer->GetNextFeature()};
        QCOMPARE(feature->GetFieldAsDouble("Transmitter-1 Height (m)"), height);
    }

    void knowsTablesWithoutAHeader_data()
    {
        const Cases<QByteArray, QString, QByteArray> row({"text", "names", "prefix"});
        const QByteArray inventory = "A1;Mast;x;2;48;90\nA2;Mast;y;3;48;180\n";
        row("a layout of the user", inventory,
            "Site ID|Site Name|Column 3|Longitude|Latitude|Azimuth");
        row("cells without a value",
            inventory + "A3;Mast;;;n/a;0\n" + QByteArray("A4;Mast;y;3;48;180\n").repeated(8),
            "Site ID|Site Name|Column 3|Longitude|Latitude|Azimuth");
        row("too many cells without a value", inventory + "A3;Mast;;;;0\n", "");
        row("a value out of range", inventory + "A3;Mast;y;3;48;400\n", "");
        row("a fraction", inventory + "A3;Mast;y;3;48;40.5\n", "");
        row("another word", inventory + "A3;Pole;y;3;48;40\n", "");
        row("a column too many", inventory + "A3;Mast;y;3;48;40;1\n", "");
        row("links", inventory, "", "link:");
    }
    void knowsTablesWithoutAHeader()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, names);
        QFETCH(QByteArray, prefix);
        m_folder.write("t.csv", text);
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset =
            m_folder.open(prefix.isEmpty() ? "site:" : prefix, "t.csv");
        QCOMPARE(dataset != nullptr, !names.isEmpty());
        if (!dataset)
            return;
        OGRLayer *layer = dataset->GetLayer(0);
        QCOMPARE(QString::fromUtf8(layer->GetMetadataItem("header_rows")), QString());
        const QStringList found = fieldNames(*layer);
        QCOMPARE(found.mid(found.size() - names.count(u'|') - 1).join(u'|'), names);
        QCOMPARE(OGRFeatureUniquePtr(layer->GetNextFeature())->GetFID(),
                 1); // the first row is data
        QVERIFY(problemsOf(*layer).contains(QLatin1String(
            "PROBLEM_1=||Warning|the table has no header: its columns are taken as those of "
            "\"inventory\" (1 Site ID, 2 Site Name, 4 Longitude, 5 Latitude, 6 Azimuth)")));
    }

    void namesColumnsByTheirValues_data()
    {
        const Cases<QByteArray, QString> row({"text", "names"});
        row("latitude first, codes and names",
            "W1;Square;48.26134;14.33007;on\nW2;Hill;48.24042;14.23658;on\n"
            "W3;Farm;48.2;14.18377;on\nW4;Road;48.36939;14.13525;on\nW5;Gate;48.25866;14.21;on\n",
            "Site ID|Site Name|Latitude|Longitude|Column 5");
        row("longitude first where the reverse cannot be",
            "Taipei 1;121.56542;25.03301\nTaipei 2;121.51702;25.04784\n"
            "Taipei 3;121.54378;25.05213\n",
            "Site Name|Longitude|Latitude");
        row("directions, heights beside them, other numbers",
            "A;48.26134;14.33007;0;30;700\nA;48.26134;14.33007;120;30;701\n"
            "B;48.24042;14.23658;240;25;702\nB;48.24042;14.23658;355;25;703\n",
            "Site Name|Latitude|Longitude|Azimuth|Antenna Height|Column 6");
        row("two columns that may be directions",
            "A;48.26134;14.33007;0;300\nA;48.26134;14.33007;120;200\n"
            "B;48.24042;14.23658;240;100\n",
            "Site Name|Latitude|Longitude|Column 4|Column 5");
        row("numbers alone with all decimals",
            "48.261341;14.330072\n48.240422;14.236585\n48.230973;14.183774\n",
            "Latitude|Longitude");
        row("degrees and minutes",
            "A;14\u00B019'48\"E;48\u00B015'40\"N\nB;14\u00B014'11\"E;48\u00B014'25\"N\n"
            "C;14\u00B011'02\"E;48\u00B013'51\"N\n",
            "Site Name|Longitude|Latitude");
        row("both in one cell",
            "48.26134 14.33007;A;1\n48.24042 14.23658;B;2\n48.23097 14.18377;C;3\n",
            "Coordinates|Site Name|Column 3");
        row("names that no one knows",
            "foo;bar;baz\nA;48.26134;14.33007\nB;48.24042;14.23658\nC;48.23097;14.18377\n",
            "foo|bar|baz");

        row("two rows only", "A;48.26134;14.33007\nB;48.24042;14.23658\n");
        row("a matrix", "A;48.26134;14.33007;3.12345\nB;48.24042;14.23658;4.54321\n"
                        "C;48.23097;14.18377;5.43215\n");
        row("shares", "A;0.26134;0.33007\nB;0.24042;0.23658\nC;0.23097;0.18377\n");
        row("numbers around zero", "A;-5.26134;9.33007\nB;2.24042;-7.23658\nC;0.5555;1.18377\n");
        row("scattered numbers", "A;1.26134;9.33007\nB;62.24042;99.23658\nC;3.23097;170.18377\n");
        row("numbers alone with few decimals",
            "48.2613;14.3300\n48.2404;14.2365\n48.2309;14.1837\n");
        row("columns apart", "48.26134;A;14.33007\n48.24042;B;14.23658\n48.23097;C;14.18377\n");
        row("the same value in all rows",
            "A;48.26134;14.33007\nB;48.26134;14.23658\nC;48.26134;14.18377\n");
    }
    void namesColumnsByTheirValues()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, names);
        m_folder.write("t.csv", text);
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = m_folder.open("site:", "t.csv");
        QCOMPARE(dataset != nullptr, !names.isEmpty());
        if (!dataset)
            return;
        const QStringList found = fieldNames(*dataset->GetLayer(0));
        QCOMPARE(found.mid(found.size() - names.count(u'|') - 1).join(u'|'), names);
    }

private:
    static QStringList fieldNames(OGRLayer &layer)
    {
        QStringList names;
        const OGRFeatureDefn *definition = layer.GetLayerDefn();
        for (int i = 0; i < definition->GetFieldCount(); ++i)
            names += QString::fromUtf8(definition->GetFieldDefn(i)->GetNameRef());
        return names;
    }

    TableFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_Headers)
#include "tst_Headers.moc"
