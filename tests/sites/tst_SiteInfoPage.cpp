#include "sites/SiteInfoPage.h"
#include "sites/SiteLayer.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>

using namespace vlt::sites;

namespace {

const QString AllPlaceholders = QStringLiteral(
    "__NAME__ __LON__ __LAT__ __TERRAINHGHT__|__SECTORID__|__HEIGHT__|__AZIMUTH__|__TILT__ "
    "__NAME__ __name__");

} // namespace

class tst_SiteInfoPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsThePage_data()
    {
        const Cases<SiteColumnSet, QString, QString> row({"columns", "language", "expected"});
        SiteColumnSet full;
        full.name = QStringLiteral("Site");
        full.x = QStringLiteral("X");
        full.y = QStringLiteral("Y");
        full.terrainHeight = QStringLiteral("H0");
        full.sectorIds = {QStringLiteral("S1")};
        full.heights = {QStringLiteral("H1")};
        full.azimuths = {QStringLiteral("A2"), QStringLiteral("A1")};
        full.tilts = {QStringLiteral("T1")};

        row("fr", full, "fr",
            "[Site] [X] [Y] Hauteur du Terrain: [H0]<br><br>|"
            "<tr><td>Secteur ID</td><td>[S1]</td></tr>|"
            "<tr><td>Hauteur</td><td>[H1]</td></tr>|"
            "<tr><td>Azimuth</td><td>[A2]</td><td>[A1]</td></tr>|"
            "<tr><td>Inclinaison</td><td>[T1]</td></tr> [Site] __name__");
        row("another language", full, "de",
            "[Site] [X] [Y] Terrain Height: [H0]<br><br>|"
            "<tr><td>Sector ID</td><td>[S1]</td></tr>|"
            "<tr><td>Height</td><td>[H1]</td></tr>|"
            "<tr><td>Azimuth</td><td>[A2]</td><td>[A1]</td></tr>|"
            "<tr><td>Tilt</td><td>[T1]</td></tr> [Site] __name__");
        row("nothing recognised", SiteColumnSet(), "en",
            "__NAME__ __LON__ __LAT__ |||| __NAME__ __name__");
    }

    void fillsThePage()
    {
        QFETCH(SiteColumnSet, columns);
        QFETCH(QString, language);

        QTEST(fillSiteInfoPage(AllPlaceholders, language, columns), "expected");
    }

    void fillsTheLayerInOrderAndNamesMissingTemplates()
    {
        const QTemporaryDir dir;
        const QString pylons = dir.path() + QStringLiteral("/addons/telecom/pylons/");
        SiteLayerInput input;
        input.installDir = dir.path();
        input.language = QStringLiteral("de");
        input.file.layerName = QStringLiteral("__SITE_FIELD__");
        input.file.nameField = QStringLiteral("NAME");
        // The columns are known since the table was opened; the file may be missing now.
        input.file.filePath = QStringLiteral("/nowhere/sites.csv");
        input.file.columns.heights = {QStringLiteral("H1")};

        input.project.projectPath = QStringLiteral("/nowhere/p.gvw");

        QCOMPARE(makeSiteLayer(input).error().path, pylons + QStringLiteral("list.xml"));
        input.catalogues.pylonTypes = {{QStringLiteral("T"), {}, {}}};
        QCOMPARE(makeSiteLayer(input).error().path, pylons + QStringLiteral("colors/sectors.xml"));
        input.catalogues.colorSets = {{{QColor(255, 0, 0)}, {}, {}}};
        input.representation.colorSet = -1;
        QCOMPARE(makeSiteLayer(input).error().key, QStringLiteral("MESS_NO_LOOK_CHOSEN"));
        input.representation.colorSet = 0;
        QCOMPARE(makeSiteLayer(input).error().path, pylons + QStringLiteral("template_sites.lay"));

        writeFile(pylons + QStringLiteral("template_sites.lay"),
                  "__TITLE__\n__SITE_URL__\n__LAYER__\n__SITE_FIELD__\n__Desc__\n__DESC__");
        const vlt::tables::TableLayer withoutPage = makeSiteLayer(input).value();
        QCOMPARE(withoutPage.warning->path, pylons + QStringLiteral("sites_infos_en.html"));
        const QString head = QStringLiteral(
            "Sites\nsite:data_folder=addons/telecom/pylons,pylon_type=T,pylon_width=2.5,"
            "sector_colors=ff0000ff,sector_properties=200 20 2,transmitter_scale=100,"
            "lods=10000 1000,sites.csv\n");
        QCOMPARE(withoutPage.text, head + QStringLiteral("NAME\nNAME\n\n__DESC__"));

        writeFile(pylons + QStringLiteral("sites_infos_en.html"), "<p>\n\xe9 __HEIGHT__\n</p>");
        const vlt::tables::TableLayer whole = makeSiteLayer(input).value();
        QVERIFY(!whole.warning);
        QCOMPARE(whole.text,
                 head + QStringLiteral("NAME\nNAME\n<p>\u00e9 <tr><td>Height</td><td>[H1]</td>"
                                       "</tr></p>\n__DESC__"));
    }
};

QTEST_GUILESS_MAIN(tst_SiteInfoPage)
#include "tst_SiteInfoPage.moc"
