#include "contract/ConnectionString.h"
#include "support/Cases.h"

#include <QtTest>

using namespace vlt::contract;

class tst_ConnectionString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesConnectionsApart_data()
    {
        const Cases<QByteArray, QByteArray, QByteArray, QByteArray> row(
            {"text", "source", "lods", "path"});
        const QByteArray wkt = "GEOGCS[\"WGS 84\",DATUM[\"W, 84\",SPHEROID[\"W\",6378137,298.2]]]";
        const QByteArray tail = "data_folder=a/b,pylon_type=T,lods=10000 1000,";
        row("path alone", "site:a.csv", {}, {}, "a.csv");
        row("any case", "SITE:a.csv", {}, {}, "a.csv");
        row("commas, = and % in the path", "site:" + tail + "x,y=1, 100%/é \"q\".csv", {},
            "10000 1000", "x,y=1, 100%/é \"q\".csv");
        row("a key in the path", "site:" + tail + "x,s_srs=1.csv", {}, "10000 1000",
            "x,s_srs=1.csv");
        row("WKT before a key", "site:s_srs=" + wkt + "," + tail + "a.csv", wkt, "10000 1000",
            "a.csv");
        row("WKT as the only option", "site:s_srs=" + wkt + ",a,b.csv", wkt, {}, "a,b.csv");
        row("unknown key", "site:foo=1,a.csv", {}, {}, "foo=1,a.csv");
    }
    void takesConnectionsApart()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, path);

        const auto connection = parseConnection(text.toStdString());

        QVERIFY(connection.has_value());
        QTEST(QByteArray::fromStdString(connection->option("s_srs")), "source");
        QTEST(QByteArray::fromStdString(connection->option("lods")), "lods");
        QCOMPARE(QByteArray::fromStdString(connection->path), path);
        QCOMPARE(QByteArray::fromStdString(composeConnection(*connection)).mid(4), text.mid(4));
    }
};

QTEST_GUILESS_MAIN(tst_ConnectionString)
#include "tst_ConnectionString.moc"
