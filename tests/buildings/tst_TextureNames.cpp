#include "buildings/FileEntry.h"
#include "buildings/HeightFromName.h"
#include "support/Cases.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::buildings;

class tst_TextureNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheHeightInAName_data()
    {
        const Cases<double, bool> row({"height", "inMetres"});
        // a number at the end
        row("roof_12", 12, false);
        row("roof 12.", 12, false);
        row("roof,5", 0.5, false);
        row("roof3,25", 3.25, false);
        row("1.2.3", 2.3, false); // "1.2.3" is not a number, but "2.3" is
        row("m 12", 12, false);   // the letter is not in the match
        row("5", 5, false);
        // a number and the letter at the end
        row("wall 3,5m", 3.5, true);
        row("wall_4 M", 4, false); // a capital letter is not the unit
        row("wall 4.(m)", 4, true);
        row("2m_wall_7(M)", 7, false);
        row("wall 4  m", 1.5, true); // at most one blank; only the letter matches
        // only the letter, at the end
        row("facade(m)", 1.5, true);
        row("beam", 1.5, true);
        row("3 m facade M", 1.5, false);
        // a number and the letter in brackets
        row("a(2.5 m)b", 2.5, true);
        row("1m (2,5(m)) b", 2.5, true);
        row("7m (8m", 8, true); // no closing bracket; the end is tried first
        row("9m (8) b", 9, true);
        // anywhere
        row("h12m_wall", 12, true);
        row("h 1.25 m wall", 1.25, true);
        row("12 m 13 m x", 12, true);
        // none
        row("wall", 0, false);
        row("12 walls", 0, false);
        row("", 0, false);
        row("wall (2.5) b", 0, false);
        row("12\n", 0, false);
        // digits of another script are not read as a number
        row("wall \u0663", 0, false);
        row("5m wall \u0663", 5, true);
    }
    void findsTheHeightInAName()
    {
        const NamedHeight named = heightFromName(QString::fromUtf8(QTest::currentDataTag()));

        QTEST(named.height, "height");
        QTEST(named.inMetres, "inMetres");
    }

    void namesTheFileOnTheDisk_data()
    {
        const Cases<QString, QString> row({"path", "name"});
        row("plain", "/a/b 2.tif", "b 2.tif");
        row("odd letters", "/a/x\":y.tif", "x\":y.tif");
        row("page", "GTIFF_DIR:2:/a/b.tif", "b.tif");
        row("quoted", "NETCDF:\"/a/b.nc\":var", "b.nc");
        row("quotes in the folder", "GTIFF_DIR:1:/a/\"q\" b/c.tif", "c.tif");
        row("quoted, with quotes", "NETCDF:\"/a \"q\"/b.nc\":var", "b.nc");
        row("slashes behind", "HDF5:\"/a/b.h5\"://c/d", "b.h5");
        row("table", "GPKG:/a/b.gpkg:table", "b.gpkg");
        row("colon in the name", "GTIFF_DIR:1:/a/b:c.tif", "b:c.tif");
        row("quote left open", "NETCDF:\"/a/b.nc", "b.nc");
        row("none", {}, {});
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
