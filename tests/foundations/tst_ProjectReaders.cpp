#include "support/Cases.h"
#include "support/Files.h"
#include "support/ProcessorTime.h"
#include "wizard/project/ProjectReaders.h"

#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::project;

class tst_ProjectReaders : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString project(const QByteArray &text) const
    {
        return writeFile(m_dir.filePath(u"p.gvw"_s), text);
    }

    /// The expected path, in which "%D/" at the start means the project's directory.
    QString inDir(const QString &expected) const
    {
        return QString(expected).replace(u"%D"_s, m_dir.path());
    }

private Q_SLOTS:
    void findsTheFirstTerrainFile_data()
    {
        const Cases<QByteArray, QString> row({"text", "expected"});
        row("absolute", "DEM Layers\nFiles : /d/dem.tif \nFiles : /d/two.tif\n", "/d/dem.tif");
        row("other files before the section",
            "Image Layers\nFiles : i.tif\nDEM Layers\n x\n\tFiles :dem.tif", "%D/dem.tif");
        row("no files label", "Files : early.tif\nDEM Layers\nFile : dem.tif\n", "");
        row("backslashes of another system", "DEM Layers\nFiles : relief\\dem.tif\n",
            "%D/relief/dem.tif");
        row("a backslash in a name", "DEM Layers\nFiles : other\\dem.tif\n", "%D/other\\dem.tif");
        QStringEncoder utf16(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
        row("UTF-16", utf16.encode(u"DEM Layers\nFiles : d\u00e9m.tif\n"_s), "%D/d\u00e9m.tif");
    }

    void findsTheFirstTerrainFile()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, expected);
        writeFile(m_dir.filePath(u"relief/dem.tif"_s));
        QCOMPARE(terrainFile(project(text)).value(), inDir(expected));
    }

    void findsTheBuildingLayer_data()
    {
        const Cases<QByteArray, QString> row({"text", "expected"});
        const QByteArray roads = "Vector layer\n File : roads.shp\n Layer name : Roads\n";
        row("second layer, UTF-8",
            roads + "Vector layer\n File : b.shp\n Layer name : B\xC3\xA2timents\n", "%D/b.shp");
        row("second layer, Latin-1, capitals",
            roads + "Vector layer\n File : b.shp\n Layer name : B\xC2TI\n", "%D/b.shp");
        row("labels in any case, CRLF, blank lines",
            "Vector layer\r\n\r\n\t file : /x/b.shp\r\n\r\nLAYER NAME : my bldg 3\r\n", "/x/b.shp");
        row("layer before the terrain files is passed over",
            "DEM Layers\nVector layer\nFile : a.shp\nLayer name : bat\nFiles : d.tif\n" + roads,
            "");
        row("layer without a name takes the next one's",
            "Vector layer\nFile : a.shp\nVector layer\nFile : b.shp\nLayer name : bat\n",
            "%D/a.shp");
        row("no file label at all ends the search",
            roads + "Vector layer\nLayer name : bat\nVector layer\n", "");
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
        const ProcessorTime time;

        QCOMPARE(buildingVectorFile(project("Vector layer" + blank)).value(), QString());
        QCOMPARE(buildingVectorFile(project(layers)).value(), QString());

        QVERIFY2(time.seconds() < 20, "the time grows with the square of the size");
    }

    void readsTheReferenceProjection_data()
    {
        const Cases<QByteArray, QString> row({"text", "expected"});
        row("plain",
            "Reference Projection : no\nDEM Layers\nFiles : d\n Reference Projection : EPSG:2154 "
            "\r\nReference Projection : other\n",
            "EPSG:2154");
        row("label twice on a line",
            "DEM Layers\nReference Projection : a Reference Projection : b\n", "a");
        row("label without a value", "DEM Layers\nReference Projection :\nx\n", "");
    }

    void readsTheReferenceProjection()
    {
        QFETCH(QByteArray, text);
        QTEST(referenceProjection(project(text)), "expected");
    }

    void knowsProjectsThatNameNothing_data()
    {
        const Cases<QByteArray, bool> row({"text", "namesNothing"});
        row("another file", "not a project", true);
        row("empty section", "DEM Layers\n Files :\nVector layer\n", true);
        row("terrain", "DEM Layers\n Files : d.tif\n", false);
        row("system", "DEM Layers\nReference Projection : 2154", false);
        row("buildings", "Vector layer\n File : b.shp\n Layer name : bat\n", false);
    }

    void knowsProjectsThatNameNothing()
    {
        QFETCH(QByteArray, text);
        QTEST(namesNothing(project(text)), "namesNothing");
    }

    void saysWhichProjectCannotBeRead()
    {
        for (const QString &path : {QString(), u"/no/such.gvw"_s, u"/dev/zero"_s}) {
            for (const auto &reader : {terrainFile, buildingVectorFile}) {
                const vlt::Result<QString> file = reader(path);
                QVERIFY(!file.ok());
                QCOMPARE(file.error().key,
                         path.isEmpty() ? u"MESS_ERR_NOM_FICHIER"_s : u"MESS_OUV_PRJ_IMP"_s);
                QCOMPARE(file.error().path, path);
            }
            QCOMPARE(referenceProjection(path), QString());
            QVERIFY(!namesNothing(path));
        }
    }
};

QTEST_GUILESS_MAIN(tst_ProjectReaders)
#include "tst_ProjectReaders.moc"
