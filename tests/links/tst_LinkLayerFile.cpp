#include "links/LinkInfoPage.h"
#include "links/LinkLayer.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::links;

namespace {

vlt::sites::SiteCatalogues catalogues()
{
    const vlt::sites::SectorColorSet twoColors{{QColor(255, 0, 0), QColor(0, 255, 0)}, {}, {}};
    return {{{u"T"_s, {}, {}}}, {twoColors}};
}

/// The values of all "<key>=" in a URL, each up to the next "&".
QStringList values(const QString &url, const QString &key)
{
    QStringList found;
    const QRegularExpression item(u"&"_s + key + u"=([^&]*)"_s);
    for (auto matches = item.globalMatch(url); matches.hasNext();)
        found << matches.next().captured(1);
    return found;
}

} // namespace

class tst_LinkLayerFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheEndsColumnByFormat_data()
    {
        const Cases<QString, QString> row({"format", "column"});
        row("asset", "ASSET 3", "Site name");
        row("atoll", "Atoll", "NAME");
        row("not of sites only", "mentum", "Site ID");
        row("generic", "generic (numbered ends)", "Site ID");
    }

    void namesTheEndsColumnByFormat()
    {
        QFETCH(QString, format);

        QTEST(linkEndNameField(format), "column");
    }

    void writesTheLookOfLinksIntoTheQuery()
    {
        LinkRepresentation look;
        look.style = LinkStyle::Line;
        look.width = 0.1234567;
        look.color = QColor(1, 2, 3, 128);
        look.colorByClearance = true;
        look.showFresnel = false;
        look.fresnelZone = 3;
        look.fresnelSharePercent = 100;
        look.fresnelTransparencyPercent = 100;
        look.kFactor = 1;

        QCOMPARE(linkQueryPart(look),
                 u"link_style=LINE,link_width=0.123457,link_color=01020380 clearance,"
                 "fresnel_zone=0,fresnel_share=100,fresnel_color=ffa50000,k_factor=1"_s);
    }

    void fillsTheLayerInOrder()
    {
        const QTemporaryDir dir;
        const QString pylons = dir.path() + u"/addons/telecom/pylons/"_s;
        LinkLayerInput input;
        input.installDir = dir.path();
        input.language = u"de"_s;
        input.catalogues = catalogues();
        input.project = {u"/p/a.gvw"_s, u"/p/dem/t.tif"_s};
        input.sourceSrs = u"4326"_s;
        input.file.filePath = u"/p/l.csv"_s;
        input.file.layerName = u"L"_s;
        input.file.endLayerName = u"L ends"_s;
        input.file.linkNameField = u"Name"_s;
        input.file.nameField = u"Site ID"_s;
        input.file.columns.name = u"Name"_s; // known; the file is missing now

        QCOMPARE(makeLinkLayer(input).error().path, pylons + u"template_links.lay"_s);

        writeFile(pylons + u"template_links.lay"_s,
                  "__TITLE__|__LINK_URL__|__LAYER__|__LINK_FIELD__|__END_LAYER__|__SITE_FIELD__|"
                  "__Desc__|");
        const auto layer = makeLinkLayer(input).value();
        QCOMPARE(layer.warning->path, pylons + u"links_infos_en.html"_s);
        QCOMPARE(layer.text,
                 u"Links|link:s_srs=4326,data_folder=addons/telecom/pylons,pylon_type=T,"
                 "pylon_width=2.5,sector_colors=ff0000ff 00ff00ff,sector_properties=200 20 2,"_s +
                     linkQueryPart({}) +
                     u",transmitter_scale=100,lods=10000 1000,dem_file=dem/t.tif,l.csv|L|Name|"
                     "L ends|Site ID||"_s);
        writeFile(pylons + u"links_infos_en.html"_s, "<h1>__NAME__</h1>");
        QVERIFY(makeLinkLayer(input).value().text.endsWith(u"|<h1>[Name]</h1>|"_s));
        QCOMPARE(placingConnection(input), u"link:s_srs=4326,/p/l.csv"_s);
    }

    void fillsThePageAndLeavesOutRowsWithoutColumns_data()
    {
        const Cases<LinkColumnSet, QString, QString> row({"columns", "language", "expected"});
        LinkColumnSet columns;
        columns.band = u"Frequency Band (GHz)"_s;
        columns.frequencyUnit = u"GHz"_s;
        columns.length = u"Length"_s;
        columns.tx.identifier = u"TX"_s;
        columns.rx.identifier = u"RX"_s;
        columns.rx.height = u"Height B"_s;
        LinkColumnSet named;
        named.name = u"Name"_s;

        row("fr", columns, "fr",
            "[TX] \u2013 [RX]|<td><small>Bande de fr\u00e9quences</small> "
            "[Frequency Band (GHz)] GHz</td>|<td><small>Longueur</small> "
            "[Length]</td>|<tr><td>Site</td><td>[TX]</td><td>[RX]</td></tr>|"
            "<tr><td>Hauteur</td><td></td><td>[Height B]</td></tr>|||");
        LinkColumnSet units;
        units.tx.height = u"Antenna height (m) 1"_s;
        units.rx.height = u"Antenna height (m) 2"_s;
        units.tx.azimuth = u"Azimuth (A)"_s;
        units.tx.dx = u"DX (1) (m)"_s;
        units.rx.dx = u"RX DX (feet)"_s;
        units.rx.dy = u"RX DY [feet]"_s;
        row("units that both ends have", units, "en",
            "||||<tr><td>Height (m)</td><td>[Antenna height (m) 1]</td><td>[Antenna height (m) "
            "2]</td></tr>|<tr><td>Azimuth</td><td>[Azimuth (A)]</td><td></td></tr>|"
            "<tr><td>DX</td><td>[DX (1) (m)]</td><td>[RX DX (feet)]</td></tr>|"
            "<tr><td>DY (feet)</td><td></td><td>[RX DY [feet]]</td></tr>");
        row("another language, a name only", named, "de", "[Name]|||||||");
    }

    void fillsThePageAndLeavesOutRowsWithoutColumns()
    {
        QFETCH(LinkColumnSet, columns);
        QFETCH(QString, language);

        QTEST(fillLinkInfoPage(u"__NAME__|__BAND__|__LENGTH__|__ID__|__HEIGHT__|__AZIMUTH__|"
                               "__DX__|__DY__"_s,
                               language, columns),
              "expected");
    }

    void demonstratesTwoLinksBetweenThreePylons()
    {
        LinkRepresentation look;
        look.colorByClearance = true;

        const QString url = buildPreviewLinkUrl({}, look, catalogues(), u"/opt/vlt"_s);

        QVERIFY(
            url.startsWith(u"inline://parametric/query?object=link&data_folder=/opt/vlt/addons/"
                           "telecom/pylons&pylon_type=T&pylon=0 0 0 25 2.5 200 20 2&dish=23 "_s));
        QVERIFY(url.endsWith(u"&link_style=LINE&link_width=2&link_color=e0218aff&fresnel_zone=1&"
                             "fresnel_share=60&fresnel_color=ffa50066&"
                             "k_factor=1.33333.inlinepylonurl"_s));
        QCOMPARE(values(url, u"pylon"_s).size(), 3);
        // The direction of 3 by 4 is 53.13 degrees.
        QCOMPARE(values(url, u"dish"_s),
                 (QStringList{u"23 53.1301 0 0 ff0000ff"_s, u"23 233.13 0 0 00ff00ff"_s,
                              u"20 126.87 0 0 ff0000ff"_s, u"20 306.87 0 0 00ff00ff"_s}));
        const QStringList links = values(url, u"link"_s);
        QCOMPARE(links.size(), 2);
        QVERIFY(links.at(0).startsWith(u"0 0 23 640 480 23 100 "_s));
        QVERIFY(links.at(1).startsWith(u"640 480 20 1280 0 20 100 "_s));
        QVERIFY(links.at(0).last(8) != links.at(1).last(8));
        QVERIFY(buildPreviewLinkUrl({}, look, {}, u"/"_s).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_LinkLayerFile)
#include "tst_LinkLayerFile.moc"
