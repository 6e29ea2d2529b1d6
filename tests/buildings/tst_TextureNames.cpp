#include "buildings/FileEntry.h"
#include "buildings/HeightFromName.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::buildings;

class tst_TextureNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheHeightInAName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<double>("height");
        QTest::addColumn<bool>("inMetres");
        const auto row = [](const QString &name, double height, bool inMetres) {
            QTest::newRow(qPrintable(name)) << name << height << inMetres;
        };
        // a number at the end
        row(u"roof_12"_s, 12, false);
        row(u"roof 12."_s, 12, false);
        row(u"roof,5"_s, 0.5, false);
        row(u"roof3,25"_s, 3.25, false);
        row(u"1.2.3"_s, 2.3, false); // "1.2.3" is not a number, but "2.3" is
        row(u"m 12"_s, 12, false);   // the letter is not in the match
        row(u"5"_s, 5, false);
        // a number and the letter at the end
        row(u"wall 3,5m"_s, 3.5, true);
        row(u"wall_4 M"_s, 4, false); // a capital letter is not the unit
        row(u"wall 4.(m)"_s, 4, true);
        row(u"2m_wall_7(M)"_s, 7, false);
        row(u"wall 4  m"_s, 1.5, true); // at most one blank; only the letter matches
        // only the letter, at the end
        row(u"facade(m)"_s, 1.5, true);
        row(u"beam"_s, 1.5, true);
        row(u"3 m facade M"_s, 1.5, false);
        // a number and the letter in brackets
        row(u"a(2.5 m)b"_s, 2.5, true);
        row(u"1m (2,5(m)) b"_s, 2.5, true);
        row(u"7m (8m"_s, 8, true); // no closing bracket; the end is tried first
        row(u"9m (8) b"_s, 9, true);
        // anywhere
        row(u"h12m_wall"_s, 12, true);
        row(u"h 1.25 m wall"_s, 1.25, true);
        row(u"12 m 13 m x"_s, 12, true);
        // none
        row(u"wall"_s, 0, false);
        row(u"12 walls"_s, 0, false);
        row(QString(), 0, false);
        row(u"wall (2.5) b"_s, 0, false);
        row(u"12\n"_s, 0, false);
        // digits of another script are not read as a number
        row(u"wall \u0663"_s, 0, false);
        row(u"5m wall \u0663"_s, 5, true);
    }
    void findsTheHeightInAName()
    {
        QFETCH(const QString, name);

        const NamedHeight named = heightFromName(name);

        QTEST(named.height, "height");
        QTEST(named.inMetres, "inMetres");
    }

    void namesTheFileOnTheDisk_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << u"/a/b 2.tif"_s << u"b 2.tif"_s;
        QTest::newRow("odd letters") << u"/a/x\":y.tif"_s << u"x\":y.tif"_s;
        QTest::newRow("page") << u"GTIFF_DIR:2:/a/b.tif"_s << u"b.tif"_s;
        QTest::newRow("quoted") << u"NETCDF:\"/a/b.nc\":var"_s << u"b.nc"_s;
        QTest::newRow("quotes in the folder") << u"GTIFF_DIR:1:/a/\"q\" b/c.tif"_s << u"c.tif"_s;
        QTest::newRow("quoted, with quotes") << u"NETCDF:\"/a \"q\"/b.nc\":var"_s << u"b.nc"_s;
        QTest::newRow("slashes behind") << u"HDF5:\"/a/b.h5\"://c/d"_s << u"b.h5"_s;
        QTest::newRow("table") << u"GPKG:/a/b.gpkg:table"_s << u"b.gpkg"_s;
        QTest::newRow("colon in the name") << u"GTIFF_DIR:1:/a/b:c.tif"_s << u"b:c.tif"_s;
        QTest::newRow("quote left open") << u"NETCDF:\"/a/b.nc"_s << u"b.nc"_s;
        QTest::newRow("none") << QString() << QString();
    }
    void namesTheFileOnTheDisk()
    {
        QFETCH(const QString, path);

        const FileEntry entry(path, 0, 0, {}, true, {});

        QTEST(entry.fileName(), "name");
    }
};

QTEST_GUILESS_MAIN(tst_TextureNames)
#include "tst_TextureNames.moc"
