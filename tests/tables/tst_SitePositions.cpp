#include "DriverTesting.h"
#include "support/Cases.h"

#include <QtTest>

#include <cmath>

/// The positions of the sites of a layer, and the systems in which they stand.
class tst_SitePositions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        QVERIFY(GDALGetDriverByName("VltTables"));
        QVERIFY(m_folder.isValid());
    }

    void placesSites_data()
    {
        const Cases<QByteArray, QString, QByteArray> row({"text", "position", "systems"});
        const QByteArray degrees = "s_srs=4326,t_srs=4326,";
        const QByteArray grads = "s_srs=4807,t_srs=4807,";
        const QByteArray numbers = "ID;X;Y\n1;";
        row("metres as degrees", numbers + "222300;6756000\n", {}, degrees);
        row("metres as latitudes", numbers + "-3;6756000\n", {}, degrees);
        row("metres", numbers + "222300;675600\n", "222300 675600", "s_srs=2154,t_srs=2154,");
        row("grads", numbers + "-190;54\n", "-190 54", grads);
        row("more than half a turn of grads", numbers + "201;54\n", {}, grads);
        row("minus sign U+2212", "ID;Lon;Lat\n1;−3.37;47\n", "-3.37 47");
        const QByteArray directed = "ID;Lat;Lat Direction;Lon;Lon Direction\n1;";
        row("hemispheres beside degrees", directed + "12.5;S;77.25;W\n", "-77.25 -12.5");
        row("hemisphere against a sign", directed + "-12.5;N;77.25;W\n", {});
        row("lower-case south", "ID;Lat;Lon\n1;33 51 0.0 s;18 30 0 e\n", "18.5 -33.85");
        row("degrees and decimal minutes",
            "ID;Lat Deg;Lat Min;Lon Deg;Lon Min\n1;47;30.0;-3;15.0\n", "-3.25 47.5");
        const QByteArray swapped = "axes=swapped,";
        row("exchanged axes", "ID;Lat;Lon\n1;-116.5;43.5\n", "-116.5 43.5", swapped);
        row("exchanged parts", "ID;Lat;Lon\n1;116 30 0 W;43 30 0 N\n", "-116.5 43.5", swapped);
        row("an exchanged pair", "ID;Coordinates\n1;\"2.5, 48.5\"\n", "2.5 48.5", swapped);
        const QByteArray here = "t_srs=4326,";
        row("zone of UTM", "ID;E;N;Zone\n1;585628;4511322;18T\n", "-73.9857 40.7484", here);
        row("zone of UTM, southern hemisphere",
            "ID;X UTM;Y UTM;UTM\n1;334900;6252300;56 South\n2;334900;6252300;\n",
            "151.215 -33.8567", here);
        row("band S, not the south", "ID;UTM\n1;32S 585628 4000000\n", "9.95176 36.1409", here);
        row("several zones", "ID;E;N;Zone\n1;585628;4511322;18T\n2;585628;4511322;19T\n",
            "-73.9857 40.7484");
        row("no zones: regions", "ID;X;Y;Zone\n1;652000;675600;1\n2;652000;675600;2\n",
            "652000 675600", "s_srs=2154,t_srs=2154,");
        row("null island", "ID;Lat;Lon\n1;0;0\n", {});
        row("unknown system in a title", "EPSG:999999\nID;Lat;Lon\n1;47;-3\n", "-3 47");
    }
    void placesSites()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, position);
        const Warnings warnings;
        QFETCH(QByteArray, systems);
        write("p.csv", text);
        const auto dataset = open(systems.constData(), "p.csv");
        QVERIFY(dataset);
        OGRFeatureUniquePtr feature{dataset->GetLayer(0)->GetNextFeature()};
        const OGRGeometry *geometry = feature->GetGeometryRef();

        QCOMPARE(geometry != nullptr, !position.isEmpty());
        if (geometry)
            QCOMPARE(QStringLiteral("%1 %2")
                         .arg(geometry->toPoint()->getX())
                         .arg(geometry->toPoint()->getY()),
                     position);
        QCOMPARE(problemsOf(*dataset->GetLayer(0))
                     .join(QLatin1Char('|'))
                     .contains(QStringLiteral("|Error|")),
                 position.isEmpty());
    }

    void findsSystemsNamedInWords_data()
    {
        const Cases<QByteArray, QByteArray> row({"table", "codes"});
        const QByteArray site = "\n1;652000.5;6862000.25\n";
        row("none", "ID;X;Y" + site, "");
        row("a title", "Sites, RGF93 / Lambert-93\nID;X;Y" + site, "2154");
        row("columns", "ID;X_BNG;Y_BNG" + site, "27700");
        row("a name within another one", "CH1903+ / LV95\nID;E;N" + site, "2056 21781");
        row("letters of another word", "Birds of record\nID;X;Y" + site, "");
    }
    void findsSystemsNamedInWords()
    {
        QFETCH(QByteArray, table);
        const Warnings warnings;
        write("w.csv", table);
        const auto dataset = open("", "w.csv");
        QVERIFY(dataset);

        QTEST(QByteArray(dataset->GetLayer(0)->GetMetadataItem("NAMED", "systems")), "codes");
    }

    void transformsToTheTargetSystem()
    {
        const Warnings warnings;
        write("t.csv", "Site ID;Longitude;Latitude\n007;-3,25;47,5\n");
        const auto dataset = open("s_srs=EPSG:4326,t_srs=2154,data_folder=x,lods=1 2,", "t.csv");
        QVERIFY(dataset);
        OGRFeatureUniquePtr feature{dataset->GetLayer(0)->GetNextFeature()};
        const OGRPoint *point = feature->GetGeometryRef()->toPoint();

        // cs2cs EPSG:4326 EPSG:2154 of 47.5 N 3.25 W
        QVERIFY2(std::abs(point->getX() - 229971.607) < 0.05,
                 qPrintable(QString::number(point->getX(), 'f', 3)));
        QVERIFY2(std::abs(point->getY() - 6729682.117) < 0.05,
                 qPrintable(QString::number(point->getY(), 'f', 3)));
        // heights of France, geocentric WGS 84
        for (const char *refused : {"t_srs=nonsense,", "t_srs=5720,", "s_srs=EPSG:4978,"})
            QVERIFY2(!open(refused, "t.csv"), refused);
    }

private:
    void write(const char *name, const QByteArray &text) { m_folder.write(name, text); }
    GDALDatasetUniquePtr open(const char *options, const char *name) const
    {
        return m_folder.open(QByteArray("site:") + options, name);
    }

    TableFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_SitePositions)
#include "tst_SitePositions.moc"
