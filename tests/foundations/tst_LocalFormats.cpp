#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"
#include "support/Files.h"

#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>

#include <cpl_conv.h>
#include <gdal_alg.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Opens a dataset as the product does, and reads all data that it refers to.
GDALDatasetUniquePtr openedLocally(const QString &path)
{
    const vlt::localfiles::NoNetwork offline;
    const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
    const QByteArray name = QFile::encodeName(path);
    if (!vlt::localfiles::isLocalDataset(name.toStdString()))
        return nullptr;
    GDALDatasetUniquePtr dataset(
        GDALDataset::Open(name, GDAL_OF_RASTER, vlt::localfiles::localRasterFormats()));
    if (dataset)
        GDALChecksumImage(dataset->GetRasterBand(1), 0, 0, 1, 1);
    else
        dataset.reset(
            GDALDataset::Open(name, GDAL_OF_VECTOR, vlt::localfiles::localVectorFormats()));
    return dataset;
}

QByteArray satelliteImageAt(const QByteArray &address)
{
    return "<Dimap_Document><Metadata_Id><METADATA_FORMAT version=\"1.1\">DIMAP"
           "</METADATA_FORMAT></Metadata_Id><Raster_Dimensions><NCOLS>2</NCOLS><NROWS>2</NROWS>"
           "<NBANDS>1</NBANDS></Raster_Dimensions><Data_Access><Data_File><DATA_FILE_PATH href=\"" +
           address + "\"/></Data_File></Data_Access></Dimap_Document>";
}

} // namespace

class tst_LocalFormats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        CPLSetConfigOption("GDAL_HTTP_TIMEOUT", "1"); // if anything contacts the server
        GDALAllRegister();
    }

    void opensFilesAndFolders_data()
    {
        QTest::addColumn<QString>("driver");
        QTest::addColumn<QString>("name");

        QTest::newRow("GeoTIFF") << u"GTiff"_s << u"a.tif"_s;
        QTest::newRow("Northwood grid") << u"NWT_GRD"_s << u"a.grd"_s;
        QTest::newRow("Surfer grid") << u"GSBG"_s << u"b.grd"_s;
        QTest::newRow("PCRaster map") << u"PCRaster"_s << u"a.map"_s;
        QTest::newRow("shapefile") << u"ESRI Shapefile"_s << u"a.shp"_s;
        QTest::newRow("folder of shapefiles") << u"ESRI Shapefile"_s << u"folder"_s;
        QTest::newRow("file geodatabase, a folder") << u"OpenFileGDB"_s << u"a.gdb"_s;
        QTest::newRow("GML") << u"GML"_s << u"a.gml"_s;
        QTest::newRow("FlatGeobuf") << u"FlatGeobuf"_s << u"a.fgb"_s;
        QTest::newRow("DXF") << u"DXF"_s << u"a.dxf"_s;
    }

    void opensFilesAndFolders()
    {
        QFETCH(QString, driver);
        QFETCH(QString, name);
        const QTemporaryDir dir;
        const QString path = dir.filePath(name);
        GDALDriver *format = GetGDALDriverManager()->GetDriverByName(driver.toLatin1());
        QVERIFY(format);
        const bool isVector = format->GetMetadataItem(GDAL_DCAP_VECTOR) != nullptr;
        {
            const CPLErrorHandlerPusher quiet(CPLQuietErrorHandler);
            const auto type = driver == u"NWT_GRD" || driver == u"GSBG" || driver == u"PCRaster"
                                  ? GDT_Float32
                                  : GDT_Byte;
            char *scale[] = {const_cast<char *>("PCRASTER_VALUESCALE=VS_SCALAR"), nullptr};
            GDALDatasetUniquePtr made(
                isVector ? format->Create(path.toUtf8(), 0, 0, 0, GDT_Unknown, nullptr)
                         : format->Create(path.toUtf8(), 8, 8, 1, type,
                                          driver == u"PCRaster" ? scale : nullptr));
            QVERIFY(made);
            if (isVector) {
                OGRLayer *layer = made->CreateLayer("a", nullptr, wkbPolygon, nullptr);
                QVERIFY(layer);
                OGRFeature feature(layer->GetLayerDefn());
                OGRGeometry *square = nullptr;
                OGRGeometryFactory::createFromWkt("POLYGON((0 0,0 1,1 1,0 0))", nullptr, &square);
                feature.SetGeometryDirectly(square);
                QCOMPARE(layer->CreateFeature(&feature), OGRERR_NONE);
            }
        }
        QVERIFY(openedLocally(path) != nullptr);
    }

    void noFileLeadsToTheNetwork_data()
    {
        QTest::addColumn<QByteArray>("content"); // %1: the server's address
        QTest::addColumn<bool>("closed"); // closed: the network file systems, for the program

        QTest::newRow("virtual raster")
            << QByteArray("<VRTDataset rasterXSize=\"2\" rasterYSize=\"2\"><VRTRasterBand "
                          "dataType=\"Byte\" band=\"1\"><SimpleSource><SourceFilename>/vsicurl/%1"
                          "</SourceFilename></SimpleSource></VRTRasterBand></VRTDataset>")
            << false;
        QTest::newRow("virtual vector")
            << QByteArray("<OGRVRTDataSource><OGRVRTLayer name=\"t\"><SrcDataSource>/vsicurl/%1"
                          "</SrcDataSource></OGRVRTLayer></OGRVRTDataSource>")
            << false;
        QTest::newRow("map service")
            << QByteArray("<GDAL_WMS><Service name=\"TMS\"><ServerUrl>%1</ServerUrl></Service>"
                          "<DataWindow><UpperLeftX>0</UpperLeftX><UpperLeftY>1</UpperLeftY>"
                          "<LowerRightX>1</LowerRightX><LowerRightY>0</LowerRightY><SizeX>2</SizeX>"
                          "<SizeY>2</SizeY></DataWindow></GDAL_WMS>")
            << false;
        QTest::newRow("feature service")
            << QByteArray("<OGRWFSDataSource><URL>%1</URL></OGRWFSDataSource>") << false;
        QTest::newRow("coordinate system behind a link")
            << QByteArray(
                   "{\"type\":\"FeatureCollection\",\"crs\":{\"type\":\"link\",\"properties\":"
                   "{\"href\":\"%1\",\"type\":\"ogcwkt\"}},\"features\":[]}")
            << false;
        QTest::newRow("schema behind a link")
            << QByteArray(
                   "<c xmlns:gml=\"http://www.opengis.net/gml\" xmlns:xsi=\"http://www.w3.org/"
                   "2001/XMLSchema-instance\" xsi:schemaLocation=\"a %1\"><gml:featureMember>"
                   "<t fid=\"1\"/></gml:featureMember></c>")
            << false;
        QTest::newRow("image behind a link") << satelliteImageAt("/vsicurl/%1") << false;
        QTest::newRow("image behind a stream") << satelliteImageAt("/vsicurl_streaming/%1") << true;
    }

    void noFileLeadsToTheNetwork()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, closed);
        if (closed)
            vlt::localfiles::closeNetworkFileSystems();
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        const QByteArray address =
            "http://127.0.0.1:" + QByteArray::number(server.serverPort()) + "/t.tif";
        const QTemporaryDir dir;
        const QString path = dir.filePath(content.startsWith('{') ? u"t.geojson"_s : u"t.xml"_s);
        writeFile(path, content.replace("%1", address));

        static_cast<void>(openedLocally(path)); // the result does not matter
        QVERIFY(!server.waitForNewConnection(100));
    }

    void isLocal_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("dataset");
        QTest::addColumn<bool>("file");

        QTest::newRow("file") << u"%1/f"_s << true << true;
        QTest::newRow("folder") << u"%1"_s << true << false;
        QTest::newRow("missing") << u"%1/none"_s << false << false;
        QTest::newRow("relative") << u"f"_s << false << false;
        QTest::newRow("device") << u"/dev/null"_s << false << false;
        QTest::newRow("virtual") << u"/vsicurl/http://127.0.0.1/f"_s << false << false;
        QTest::newRow("virtual, capitals") << u"/VSIZIP/%1/f"_s << false << false;
        QTest::newRow("database") << u"PG:dbname=f"_s << false << false;
    }

    void isLocal()
    {
        QFETCH(QString, path);
        const QTemporaryDir dir;
        writeFile(dir.filePath(u"f"_s));
        const std::string name = path.replace(u"%1"_s, dir.path()).toStdString();
        QTEST(vlt::localfiles::isLocalDataset(name), "dataset");
        QTEST(vlt::localfiles::isLocalFile(name), "file");
    }
};

QTEST_GUILESS_MAIN(tst_LocalFormats)
#include "tst_LocalFormats.moc"
