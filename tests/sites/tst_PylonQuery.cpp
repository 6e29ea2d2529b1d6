#include "sites/PylonQuery.h"
#include "support/Cases.h"

#include <QTest>

using namespace vlt::sites;
using vlt::contract::TableKind;

namespace {

SiteCatalogues catalogues()
{
    const SectorColorSet twoColors{{QColor(255, 0, 0), QColor(0, 255, 0)}, {}, {}};
    return {{{QStringLiteral("T"), {}, {}}}, {twoColors}};
}

const QString FirstRun =
    QStringLiteral("data_folder=addons/telecom/pylons,pylon_type=T,pylon_width=2.5,"
                   "sector_colors=ff0000ff 00ff00ff,sector_properties=200 20 2,"
                   "transmitter_scale=100,lods=10000 1000,");

} // namespace

class tst_PylonQuery : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesSystemsAndPaths_data()
    {
        const Cases<QString, QString, QString, QString, QString> row(
            {"sourceSrs", "targetSrs", "project", "table", "expected"});
        row("no system", "", "", "/p/a.gvw", "/p/data/sites.csv",
            QStringLiteral("site:") + FirstRun + QStringLiteral("data/sites.csv"));
        row("target only, table elsewhere", "", "2154", "/p/a.gvw", "/q/sites.csv",
            QStringLiteral("site:t_srs=2154,") + FirstRun + QStringLiteral("../q/sites.csv"));
        row("source only, no project", "4326", "", "", "/q/sites.csv",
            QStringLiteral("site:s_srs=4326,") + FirstRun + QStringLiteral("/q/sites.csv"));
        row("a slot in a value is taken by the next value", "%3", "", "/p/a.gvw", "/p/s.csv",
            (QStringLiteral("site:s_srs=addons/telecom/pylons,") + FirstRun +
             QStringLiteral("s.csv")));
    }

    void writesSystemsAndPaths()
    {
        QFETCH(QString, sourceSrs);
        QFETCH(QString, targetSrs);
        QFETCH(QString, project);
        QFETCH(QString, table);

        const QString query = buildPylonQuery({TableKind::Sites, sourceSrs, targetSrs, table, {}},
                                              SiteRepresentation(), catalogues(), {project, {}});

        QTEST(query, "expected");
    }

    void writesNumbersInTheirShortestForm()
    {
        SiteRepresentation look;
        look.pylonWidthM = 3.0;
        look.sectorRadiusM = 199.9;
        look.sectorHeightM = 1e8;
        look.sectorSpacingM = 0.1234567;
        look.transparencyPercent = 50;

        const QString query =
            buildPylonQuery({TableKind::Sites, {}, {}, QStringLiteral("/p/s.csv"), {}}, look,
                            catalogues(), {QStringLiteral("/p/a.gvw"), {}});

        QCOMPARE(query, QStringLiteral("site:data_folder=addons/telecom/pylons,pylon_type=T,"
                                       "pylon_width=3,sector_colors=ff00007f 00ff007f,"
                                       "sector_properties=199 1e+08 0.123457,"
                                       "transmitter_scale=100,lods=10000 1000,s.csv"));
    }

    void repeatsColorsInThePreview()
    {
        const QString url =
            buildPreviewPylonUrl(SiteRepresentation(), catalogues(), QStringLiteral("/opt/vlt"));

        QCOMPARE(url,
                 QStringLiteral(
                     "inline://parametric/query?object=pylon&data_folder=/opt/vlt/addons/telecom/"
                     "pylons&pylon_type=T&pylon=0 0 0 25 2.5 200 20 2"
                     "&transmitter=23 0 0 0 0 ff0000ff&transmitter=23 120 0 0 0 00ff00ff"
                     "&transmitter=23 240 -5 0 0 ff0000ff&transmitter=20 20 0 0 0 00ff00ff"
                     "&transmitter=20 140 +5 0 0 ff0000ff&transmitter=20 260 0 0 0 00ff00ff"
                     "&transmitter_scale=100&lod=10000 1000.inlinepylonurl"));
    }

    void isEmptyWithoutAChosenEntry()
    {
        for (const int index : {-1, 1}) {
            SiteRepresentation noPylon;
            noPylon.pylonType = index;
            SiteRepresentation noColors;
            noColors.colorSet = index;
            for (const SiteRepresentation &look : {noPylon, noColors}) {
                QVERIFY(buildPylonQuery({TableKind::Sites, {}, {}, {}, {}}, look, catalogues(), {})
                            .isEmpty());
                QVERIFY(buildPreviewPylonUrl(look, catalogues(), QStringLiteral("/")).isEmpty());
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_PylonQuery)
#include "tst_PylonQuery.moc"
