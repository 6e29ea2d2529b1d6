#include "contract/ConnectionString.h"

#include <QtTest>

using namespace vlt::contract;

class tst_ConnectionString : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesConnectionsApart_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("source");
        QTest::addColumn<QByteArray>("lods");
        QTest::addColumn<QByteArray>("path");
        const QByteArray wkt = "GEOGCS[\"WGS 84\",DATUM[\"W, 84\",SPHEROID[\"W\",6378137,298.2]]]";
        const QByteArray tail = "data_folder=a/b,pylon_type=T,lods=10000 1000,";
        QTest::newRow("path alone")
            << QByteArray("site:a.csv") << QByteArray() << QByteArray() << QByteArray("a.csv");
        QTest::newRow("any case") << QByteArray("SITE:a.csv") << QByteArray() << QByteArray()
                                  << QByteArray("a.csv");
        QTest::newRow("commas, = and % in the path")
            << "site:" + tail + "x,y=1, 100%/é \"q\".csv" << QByteArray()
            << QByteArray("10000 1000") << QByteArray("x,y=1, 100%/é \"q\".csv");
        QTest::newRow("a key in the path")
            << "site:" + tail + "x,s_srs=1.csv" << QByteArray() << QByteArray("10000 1000")
            << QByteArray("x,s_srs=1.csv");
        QTest::newRow("WKT before a key") << "site:s_srs=" + wkt + "," + tail + "a.csv" << wkt
                                          << QByteArray("10000 1000") << QByteArray("a.csv");
        QTest::newRow("WKT as the only option")
            << "site:s_srs=" + wkt + ",a,b.csv" << wkt << QByteArray() << QByteArray("a,b.csv");
        QTest::newRow("unknown key") << QByteArray("site:foo=1,a.csv") << QByteArray()
                                     << QByteArray() << QByteArray("foo=1,a.csv");
    }
    void takesConnectionsApart()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, source);
        QFETCH(QByteArray, lods);
        QFETCH(QByteArray, path);

        const auto connection = parseConnection(text.toStdString());

        QVERIFY(connection.has_value());
        QCOMPARE(QByteArray::fromStdString(connection->option("s_srs")), source);
        QCOMPARE(QByteArray::fromStdString(connection->option("lods")), lods);
        QCOMPARE(QByteArray::fromStdString(connection->path), path);
        QCOMPARE(QByteArray::fromStdString(composeConnection(*connection)).mid(4), text.mid(4));
    }
};

QTEST_GUILESS_MAIN(tst_ConnectionString)
#include "tst_ConnectionString.moc"
