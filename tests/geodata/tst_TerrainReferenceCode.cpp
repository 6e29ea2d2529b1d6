#include "app/GeodataLibrary.h"
#include "geodata/DatasetReferenceCode.h"
#include "geodata/LayerProblems.h"
#include "geodata/TerrainReferenceCode.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>

using vlt::Problem;
using vlt::geodata::terrainReferenceCode;

namespace {

const QByteArray Grid = "ncols 2\nnrows 2\nxllcorner 0\nyllcorner 0\ncellsize 10\n1 2\n3 4\n";

const QByteArray Geographic =
    R"(GEOGCS["GCS_WGS_1984",DATUM["D_WGS_1984",SPHEROID["WGS_1984",6378137,298.257223563]],)"
    R"(PRIMEM["Greenwich",0],UNIT["Degree",0.0174532925199433]])";

QByteArray projected(const QByteArray &name, const QByteArray &projection, double centralMeridian)
{
    return "PROJCS[\"" + name + "\"," + Geographic + ",PROJECTION[\"" + projection +
           "\"],PARAMETER[\"False_Easting\",500000],PARAMETER[\"False_Northing\",0],"
           "PARAMETER[\"Central_Meridian\"," +
           QByteArray::number(centralMeridian) +
           "],PARAMETER[\"Scale_Factor\",0.9996],PARAMETER[\"Latitude_Of_Origin\",0],"
           "UNIT[\"Meter\",1]]";
}

} // namespace

class tst_TerrainReferenceCode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { vlt::app::registerGeodataDrivers(); }

    void identifiesTheSystemOfARaster_data()
    {
        const Cases<QByteArray, QString> row({"system", "code"});
        row("UTM 31 north", projected("WGS_1984_UTM_Zone_31N", "Transverse_Mercator", 3), "32631");
        row("WGS 84", Geographic, "4326");
        row("a projection of nobody's", projected("Local", "Transverse_Mercator", 3.21), {});
        row("no system", {}, {});
    }

    void identifiesTheSystemOfARaster()
    {
        QFETCH(QByteArray, system);
        const QTemporaryDir dir;
        const QString grid = dir.filePath(QStringLiteral("terrain \u00e9, 1%.asc"));
        writeFile(grid, Grid);
        if (!system.isEmpty())
            writeFile(QString(grid).replace(QLatin1String(".asc"), QLatin1String(".prj")), system);

        QTEST(terrainReferenceCode(grid), "code");
    }

    void opensNothingButLocalFiles()
    {
        const QTemporaryDir dir;
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const QString url = QStringLiteral("http://127.0.0.1:%1/t.tif").arg(server.serverPort());
        const QString described = dir.filePath(QStringLiteral("t.vrt"));
        writeFile(described,
                  "<VRTDataset rasterXSize=\"2\" rasterYSize=\"2\"><SRS>EPSG:4326</SRS>"
                  "<VRTRasterBand dataType=\"Byte\" band=\"1\"><SimpleSource><SourceFilename>"
                  "/vsicurl/" +
                      url.toUtf8() +
                      "</SourceFilename></SimpleSource></VRTRasterBand></VRTDataset>");

        for (const QString &name :
             {url, QStringLiteral("/vsicurl/") + url, QStringLiteral("WMS:") + url,
              QStringLiteral("MEM:::DATAPOINTER=1,PIXELS=1,LINES=1"), described, dir.path(),
              QString()})
            QCOMPARE(terrainReferenceCode(name), QString());
        const QString linking = dir.filePath(QStringLiteral("linking.geojson"));
        writeFile(linking, "{\"type\":\"FeatureCollection\",\"crs\":{\"type\":\"link\","
                           "\"properties\":{\"href\":\"" +
                               url.toUtf8() + "\",\"type\":\"ogcwkt\"}},\"features\":[]}");
        static_cast<void>(vlt::geodata::datasetReferenceCode(linking)); // any result
        QVERIFY(!server.waitForNewConnection(100));
    }

    void readsProblemItems()
    {
        const Problem whole =
            vlt::geodata::parseProblem(QStringLiteral("12|Longitude|Error|no number: \"a|b\""));
        QCOMPARE(whole.row, 12);
        QCOMPARE(whole.column, QStringLiteral("Longitude"));
        QCOMPARE(whole.severity, Problem::Severity::Error);
        QCOMPARE(whole.text, QStringLiteral("no number: \"a|b\""));

        const Problem sparse = vlt::geodata::parseProblem(QStringLiteral("||Warning|mended"));
        QCOMPARE(sparse.row, 0);
        QCOMPARE(sparse.severity, Problem::Severity::Warning);
        QCOMPARE(sparse.text, QStringLiteral("mended"));
    }
};

QTEST_GUILESS_MAIN(tst_TerrainReferenceCode)
#include "tst_TerrainReferenceCode.moc"
