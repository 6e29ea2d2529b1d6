#include "localfiles/LocalFormats.h"
#include "localfiles/NoNetwork.h"
#include "support/Cases.h"
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
        const Cases<QString, QString> row({"driver", "name"});
        row("GeoTIFF", "GTiff", "a.tif");
        row("Northwood grid", "NWT_GRD", "a.grd");
        row("Surfer grid", "GSBG", "b.grd");
        row("PCRaster map", "PCRaster", "a.map");
        row("shapefile", "ESRI Shapefile", "a.shp");
        row("folder of shapefiles", "ESRI Shapefile", "folder");
        row("file geodatabase, a folder", "OpenFileGDB", "a.gdb");
        row("GML", "GML", "a.gml");
        row("FlatGeobuf", "FlatGeobuf", "a.fgb");
        row("DXF", "DXF", "a.dxf");
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
        // content: "%1" means the server's address
        // closed: the network file systems, for the program
        const Cases<QByteArray, bool> row({"content", "closed"});
        row("virtual raster",
            "<VRTDataset rasterXSize=\"2\" rasterYSize=\"2\"><VRTRasterBand "
            "dataType=\"Byte\" band=\"1\"><SimpleSource><SourceFilename>/vsicurl/%1"
            "</SourceFilename></SimpleSource></VRTRasterBand></VRTDataset>",
            false);
        row("virtual vector",
            "<OGRVRTDataSource><OGRVRTLayer name=\"t\"><SrcDataSource>/vsicurl/%1"
            "</SrcDataSource></OGRVRTLayer></OGRVRTDataSource>",
            false);
        row("map service",
            "<GDAL_WMS><Service name=\"TMS\"><ServerUrl>%1</ServerUrl></Service>"
            "<DataWindow><UpperLeftX>0</UpperLeftX><UpperLeftY>1</UpperLeftY>"
            "<LowerRightX>1</LowerRightX><LowerRightY>0</LowerRightY><SizeX>2</SizeX>"
            "<SizeY>2</SizeY></DataWindow></GDAL_WMS>",
            false);
        row("feature service", "<OGRWFSDataSource><URL>%1</URL></OGRWFSDataSource>", false);
        row("coordinate system behind a link",
            "{\"type\":\"FeatureCollection\",\"crs\":{\"type\":\"link\",\"properties\":"
            "{\"href\":\"%1\",\"type\":\"ogcwkt\"}},\"features\":[]}",
            false);
        row("schema behind a link",
            "<c xmlns:gml=\"http://www.opengis.net/gml\" xmlns:xsi=\"http://www.w3.org/"
            "2001/XMLSchema-instance\" xsi:schemaLocation=\"a %1\"><gml:featureMember>"
            "<t fid=\"1\"/></gml:featureMember></c>",
            false);
        row("image behind a link", satelliteImageAt("/vsicurl/%1"), false);
        row("image behind a stream", satelliteImageAt("/vsicurl_streaming/%1"), true);
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
        const Cases<QString, bool, bool> row({"path", "dataset", "file"});
        row("file", "%1/f", true, true);
        row("folder", "%1", true, false);
        row("missing", "%1/none", false, false);
        row("relative", "f", false, false);
        row("device", "/dev/null", false, false);
        row("virtual", "/vsicurl/http://127.0.0.1/f", false, false);
        row("virtual, capitals", "/VSIZIP/%1/f", false, false);
        row("database", "PG:dbname=f", false, false);
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
