#include "wizard/project/ProjectReaders.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::project;

class TestProjectReaders : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString project(const QByteArray &text) const
    {
        QFile file(m_dir.filePath(u"p.gvw"_s));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            return {};
        return file.fileName();
    }

    /// "%D/" at the start of an expected path stands for the project's directory.
    QString inDir(const QString &expected) const
    {
        return QString(expected).replace(u"%D"_s, m_dir.path());
    }

private Q_SLOTS:
    void findsTheFirstTerrainFile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("expected");

        QTest::newRow("absolute") << QByteArray(
                                         "DEM Layers\nFiles : /d/dem.tif \nFiles : /d/two.tif\n")
                                  << u"/d/dem.tif"_s;
        QTest::newRow("relative") << QByteArray("DEM Layers\nFiles : ../dem/a b.tif\n")
                                  << u"%D/../dem/a b.tif"_s;
        QTest::newRow("other files before the section")
            << QByteArray("Image Layers\nFiles : i.tif\nDEM Layers\n x\n\tFiles :dem.tif")
            << u"%D/dem.tif"_s;
        QTest::newRow("CRLF") << QByteArray("DEM Layers\r\nFiles : dem.tif\r\nx")
                              << u"%D/dem.tif"_s;
        QTest::newRow("Latin-1") << QByteArray("DEM Layers\nFiles : /r\xE9gion/dem.tif\n")
                                 << u"/région/dem.tif"_s;
        QTest::newRow("no files label")
            << QByteArray("Files : early.tif\nDEM Layers\nFile : dem.tif\n") << QString();
        QTest::newRow("label without a value")
            << QByteArray("DEM Layers\nFiles :\ndem.tif\n") << QString();
    }

    void findsTheFirstTerrainFile()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, expected);
        QCOMPARE(terrainFile(project(text)).value(), inDir(expected));
    }

    void findsTheBuildingLayer_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("expected");
        const QByteArray roads = "Vector layer\n File : roads.shp\n Layer name : Roads\n";

        QTest::newRow("second layer, UTF-8")
            << roads + "Vector layer\n File : b.shp\n Layer name : B\xC3\xA2timents\n"
            << u"%D/b.shp"_s;
        QTest::newRow("second layer, Latin-1, capitals")
            << roads + "Vector layer\n File : b.shp\n Layer name : B\xC2TI\n"
            << u"%D/b.shp"_s;
        QTest::newRow("labels in any case, CRLF, blank lines")
            << QByteArray(
                   "Vector layer\r\n\r\n\t file : /x/b.shp\r\n\r\nLAYER NAME : my bldg 3\r\n")
            << u"/x/b.shp"_s;
        QTest::newRow("first of two")
            << QByteArray("Vector layer\nFile : a.shp\nLayer name : Combat\n"
                          "Vector layer\nFile : b.shp\nLayer name : Build\n")
            << u"%D/a.shp"_s;
        QTest::newRow("label inside a line does not count")
            << QByteArray("Vector layer\n Old File : a.shp\n File : b.shp\n Layer name : bat\n")
            << u"%D/b.shp"_s;
        QTest::newRow("layer before the terrain files is passed over")
            << QByteArray(
                   "DEM Layers\nVector layer\nFile : a.shp\nLayer name : bat\nFiles : d.tif\n") +
                   roads
            << QString();
        QTest::newRow("layer without a name takes the next one's")
            << QByteArray(
                   "Vector layer\nFile : a.shp\nVector layer\nFile : b.shp\nLayer name : bat\n")
            << u"%D/a.shp"_s;
        QTest::newRow("layer without a file takes the next one's")
            << QByteArray("Vector layer\nLayer name : bat\n") + roads << QString();
        QTest::newRow("no file label at all ends the search")
            << roads + "Vector layer\nLayer name : bat\nVector layer\n"
            << QString();
        QTest::newRow("building layer without a file name")
            << QByteArray("Vector layer\nFile :\nLayer name : bat\n") << QString();
    }

    void findsTheBuildingLayer()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, expected);
        QCOMPARE(buildingVectorFile(project(text)).value(), inDir(expected));
    }

    void readsHurtfulProjectsQuickly()
    {
        const QByteArray blank(2000000, '\n');
        const QByteArray layers = QByteArray("Vector layer\nFile : a\n").repeated(50000);
        QElapsedTimer timer;
        timer.start();

        QCOMPARE(buildingVectorFile(project("Vector layer" + blank)).value(), QString());
        QCOMPARE(buildingVectorFile(project(layers)).value(), QString());

        QVERIFY2(timer.elapsed() < 20000, "the time grows with the square of the size");
    }

    void readsTheReferenceProjection_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("expected");

        QTest::newRow("plain")
            << QByteArray("Reference Projection : no\nDEM Layers\nFiles : d\n"
                          " Reference Projection : EPSG:2154 \r\nReference Projection : other\n")
            << u"EPSG:2154"_s;
        QTest::newRow("label twice on a line")
            << QByteArray("DEM Layers\nReference Projection : a Reference Projection : b\n")
            << u"a"_s;
        QTest::newRow("last line")
            << QByteArray("DEM Layers Reference Projection :x:y") << u"x:y"_s;
        QTest::newRow("label without a value")
            << QByteArray("DEM Layers\nReference Projection :\nx\n") << QString();
        QTest::newRow("other case")
            << QByteArray("DEM Layers\nreference projection : x\n") << QString();
    }

    void readsTheReferenceProjection()
    {
        QFETCH(QByteArray, text);
        QTEST(referenceProjection(project(text)), "expected");
    }

    void saysWhichProjectCannotBeRead_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("key");
        QTest::newRow("empty path") << QString() << u"MESS_ERR_NOM_FICHIER"_s;
        QTest::newRow("missing file") << u"/no/such.gvw"_s << u"MESS_OUV_PRJ_IMP"_s;
        QTest::newRow("directory") << QDir::tempPath() << u"MESS_OUV_PRJ_IMP"_s;
        QTest::newRow("device without an end") << u"/dev/zero"_s << u"MESS_OUV_PRJ_IMP"_s;
    }

    void saysWhichProjectCannotBeRead()
    {
        QFETCH(QString, path);
        QFETCH(QString, key);
        for (const auto &reader : {terrainFile, buildingVectorFile}) {
            const vlt::Result<QString> file = reader(path);
            QVERIFY(!file.ok());
            QCOMPARE(file.error().key, key);
            QCOMPARE(file.error().path, path);
        }
        QCOMPARE(referenceProjection(path), QString());
    }
};

QTEST_GUILESS_MAIN(TestProjectReaders)
#include "tst_ProjectReaders.moc"
