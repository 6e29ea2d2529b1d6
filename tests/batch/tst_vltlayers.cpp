#include "ProgramRun.h"
#include "support/Cases.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Table = "Site ID,Longitude,Latitude,Transmitter-1 Azimuth (\xc2\xb0),"
                         "Transmitter-1 Height (m),Transmitter-2 Azimuth (\xc2\xb0)\n"
                         "A,1.5,45,10,30,130\nB,2.5,45.5,20,25,140\n";

const QByteArray FirstRun =
    "data_folder=addons/telecom/pylons,pylon_type=monopole_panel,pylon_width=2.5,sector_colors="
    "ff0000ff 00ff00ff 0000ffff ffff00ff ff00ffff 00ffffff,sector_properties=200 20 2,"
    "transmitter_scale=100,lods=10000 1000,";

} // namespace

class tst_vltlayers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_program = std::make_unique<ProgramRun>();
        writeFile(path(u"install dir/MESSAGES/own_fr.ts"_s),
                  "<TS version='2.1' language='fr'><context><message id='MESS_SITES'>"
                  "<source>x</source><translation>Relais \xc3\xa9lev\xc3"
                  "\xa9s</translation></message></context></TS>");
    }

    void makesALayerFromAnotherDirectory_data()
    {
        const Cases<QString, QString, QString> row({"table", "project", "inLayer"});
        row("beside the project", "sites.csv", "city.gvw", "sites.csv");
        row("blanks and accents", "données brutes/mes sites é.csv", "a project/ville é.gvw",
            "../données brutes/mes sites é.csv");
        row("signs", "it's \"50%\"/a,b=c %1 s&<t>.csv", "it's \"50%\"/c.gvw", "a,b=c %1 s&<t>.csv");
    }

    void makesALayerFromAnotherDirectory()
    {
        QFETCH(QString, table);
        QFETCH(QString, project);
        QFETCH(QString, inLayer);
        writeFile(path(table), Table);
        writeFile(path(project), "DEM Layers\nReference Projection : 2154\n");

        const Run run = start(QStringList{u"site"_s, u"../"_s + table, u"--project"_s,
                                          u"../"_s + project, u"-o"_s, u"out %2.lay"_s});

        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.output, QByteArray());
        const QByteArray layer = readFile(path(u"elsewhere/out %2.lay"_s));
        QCOMPARE(element(layer, "source"),
                 "site:s_srs=4326,t_srs=2154," + FirstRun + inLayer.toUtf8());
        // The page has columns only if the relative path was resolved with the project.
        QVERIFY(element(layer, "description")
                    .contains("<tr><td>Azimuth</td><td>[Transmitter-1 Azimuth (\xc2\xb0)]</td>"
                              "<td>[Transmitter-2 Azimuth (\xc2\xb0)]</td></tr>"));
    }

    void writesEveryPanelValueAndTheLanguage()
    {
        writeFile(path(u"s.csv"_s), Table);

        const Run run = start(u"site ../s.csv --output o.lay --source-srs=EPSG:4326 "
                              "--target-srs epsg:32631 --sector-height 30.5 --sector-radius 150.9 "
                              "--sector-spacing 0 --sector-colors 7 --transparency 50 "
                              "--symbolic-distance 5000 --pylon-type lattice_panel "
                              "--pylon-width 1e1 --antenna-size 0 --realistic-distance 1 "
                              "--language fr --json"_s);

        QCOMPARE(run.errors, QByteArray());
        const QByteArray layer = readFile(path(u"elsewhere/o.lay"_s));
        QCOMPARE(element(layer, "source"),
                 "site:s_srs=EPSG:4326,t_srs=epsg:32631,data_folder=addons/telecom/pylons,"
                 "pylon_type=lattice_panel,pylon_width=10,sector_colors=ff000040 00ff0040 "
                 "0000ff40,sector_properties=150 30.5 0,transmitter_scale=0,lods=5000 1," +
                     path(u"s.csv"_s).toUtf8());
        QCOMPARE(element(layer, "title"), QByteArray("Relais \xc3\xa9lev\xc3\xa9s"));
        QVERIFY(element(layer, "description").contains("<tr><td>Hauteur</td>"));
        const QJsonObject reported = QJsonDocument::fromJson(run.output).object();
        QCOMPARE(reported.value(u"sites"_s).toInt(), 2);
        QCOMPARE(reported.value(u"layer"_s).toString(), path(u"elsewhere/o.lay"_s));
    }

    void takesNamesOfEveryLanguage_data()
    {
        const Cases<QStringList, QByteArray> row({"options", "inLayer"});
        row("French colors", {u"--sector-colors"_s, u"tons FROIDS"_s}, "sector_colors=103880ff ");
        row("English colors", {u"--sector-colors=warm shades"_s}, "sector_colors=b21820ff ");
        row("English mast",
            {u"--pylon-type=Slim tubular mast with cylindrical antennas, without "
             "platform"_s},
            "pylon_type=monopole_slim,");
        row("type in capitals", {u"--pylon-type=LATTICE_panel"_s}, "=lattice_panel,");
    }

    void takesNamesOfEveryLanguage()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArray, inLayer);
        writeFile(path(u"s.csv"_s), Table);

        for (const QString &language : {u"en"_s, u"fr"_s}) {
            const Run run = start(QStringList{u"site"_s, u"../s.csv"_s, u"-o"_s, u"o.lay"_s,
                                              u"--language"_s, language} +
                                  options);
            QCOMPARE(run.errors, QByteArray());
            const QByteArray source = element(readFile(path(u"elsewhere/o.lay"_s)), "source");
            QVERIFY2(source.contains(inLayer), source.constData());
        }
    }

    void speaksFrenchOfTables_data()
    {
        const Cases<QString, QString, QString> row({"table", "arguments", "text"});
        row("a problem of a row",
            "Site ID,Longitude,Latitude\nA,\"100%2 \"\"E\"\" %1\",45\nB,3,45\n", "info",
            "la coordonnée «\u00a0100%2 \"E\" %1\u00a0» ne peut pas être lue\u00a0: ");
        row("a system", "Site ID,Longitude,Latitude\nA,2,45\n", "site -oo.lay --source-srs \"1\"",
            "s.csv: le système de coordonnées «\u00a0\"1\"\u00a0» est inconnu");
    }

    void speaksFrenchOfTables()
    {
        QFETCH(QString, table);
        QFETCH(QString, arguments);
        QFETCH(QString, text);
        QVERIFY(QFile::link(u"" VLT_INSTALLATION "/addons/telecom/MESSAGES/tables_fr.ts"_s,
                            path(u"install dir/MESSAGES/tables_fr.ts"_s)));
        writeFile(path(u"s.csv"_s), table.toUtf8());

        const Run run = start(arguments + u" ../s.csv --language fr"_s);

        const QByteArray reported = run.output + run.errors;
        QVERIFY2(reported.contains(text.toUtf8()), reported.constData());
    }

    void warnsOfAProjectThatNamesNothing()
    {
        writeFile(path(u"s.csv"_s), Table);
        writeFile(path(u"bad.gvw"_s), "not a project");

        const Run run = start(u"site ../s.csv -o o.lay --project ../bad.gvw"_s);
        const Run quiet = start(u"site ../s.csv -o o.lay --project ../bad.gvw --quiet"_s);

        QCOMPARE(run.status, 0);
        QCOMPARE(run.errors, QByteArray("vltlayers: ../bad.gvw: the project names neither a "
                                        "reference system nor a terrain nor buildings\n"));
        QCOMPARE(quiet.errors, QByteArray());
    }

    void warnsOfSystemsThatDoNotFit_data()
    {
        // The name of a row is its arguments.
        const Cases<QByteArray, QByteArray> row({"table", "warning"});
        const QByteArray meters = "Site ID,X,Y\nA,222300,6756000\n"; // Brittany in Lambert-93
        row("--target-srs EPSG:2154", Table, {});
        row("--source-srs 2154 --target-srs 2154", Table,
            "the coordinates of the table are in degrees, but its system RGF93 v1 / Lambert-93 "
            "(2154) uses meters or feet");
        row("--source-srs 4326 --target-srs EPSG:4326", meters,
            "the coordinates of the table are in meters, but its system WGS 84 (4326) uses "
            "degrees\nvltlayers: ../s.csv: none of its sites has a position; \"vltlayers info\" "
            "shows why");
        row("--target-srs 2193", Table,
            "outside the area of use of NZGD2000 / New Zealand Transverse Mercator 2000 (2193): "
            "2 of 2 positions");
        row("--source-srs 32630 --target-srs EPSG:32630", meters,
            "outside the area of use of WGS 84 / UTM zone 30N (32630): 1 of 1 positions");
    }

    void warnsOfSystemsThatDoNotFit()
    {
        QFETCH(QByteArray, table);
        QFETCH(QByteArray, warning);
        writeFile(path(u"s.csv"_s), table);

        const Run run = start(u"site ../s.csv -o o.lay --json "_s +
                              QString::fromLatin1(QTest::currentDataTag()));

        QCOMPARE(run.errors, warning.isEmpty() ? "" : "vltlayers: " + warning + '\n');
        const QJsonArray inJson = QJsonDocument::fromJson(run.output)[u"warnings"_s].toArray();
        QCOMPARE(inJson.isEmpty(), run.status != 0 || warning.isEmpty());
        QCOMPARE(run.status, run.errors.contains("none of its sites") ? 1 : 0);
    }

    void refusesAndWritesNothing_data()
    {
        const Refusals row;
        row("info ../sites.csv --report", 2, "--report");
        row("info ../sites.csv ../sites.csv --rejects r.csv", 2, "with one table only");
        row("info ../sites.csv --report r.csv --rejects ./r.csv", 2, "need different files");
        row("site ../missing.csv -o old.lay", 1,
            "../missing.csv: This file can't be open as a site file (the file does not exist)");
        row("site ../unplaced.csv -o old.lay", 1, "../unplaced.csv: ");
        row("site ../meters.csv -o old.lay", 1, "their coordinate system is not known");
        row("site ../links.csv -o old.lay", 1,
            "../links.csv: This file can't be open as a site file (this is a table of links, not");
        row("info ../links.csv", 1, "a table of links, not of sites");
        row("site ../s.csv -o ../s.csv", 1, "one of the input files");
        row("site ../s.csv -o ../c.gvw --project ../c.gvw", 1, "one of the input files");
        row("site ../s.csv -o old.lay --project ../no.gvw", 1, "../no.gvw: Cannot open project");
        row("site ../s.csv -o old.lay --install ../no", 1, "this install directory does not exist");
        row("site ../s.csv -o old.lay --source-srs no-such-system", 1,
            "../s.csv: the coordinate system \"no-such-system\" is not known");
        row("site ../s.csv -o old.lay --target-srs EPSG:5720", 1,
            "EPSG:5720: This system has heights only");
        row("site ../s.csv -o old.lay --source-srs 4978", 1, "4978: This system is geocentric");
        row("site ../s.csv -o nowhere/o.lay", 1, "nowhere/o.lay: Can't create the layer file");
        row("site ../s.csv", 2, "-o OUT.lay");
        row("site -o old.lay", 2, "no table");
        row("site ../s.csv -o old.lay --pylon-width 150.5", 2, "0.1 to 150");
        row("site ../s.csv -o old.lay --pylon-width nan", 2, "0.1 to 150");
        row("site ../s.csv -o old.lay --transparency -1", 2, "0 to 100");
        row("site ../s.csv -o old.lay --pylon-type zero", 2, "monopole_panel");
        row("site ../s.csv -o old.lay --sector-colors 0", 2, "--sector-colors");
        row("info ../s.csv --language de", 2, "fr|en");
        row("info ../s.csv --delimiter colon", 2, "comma|semicolon|tab|bar");
        row("info ../s.csv --encoding a,b", 2, "--encoding is the name of an encoding");
        row("site ../s.csv -o old.lay -o b.lay", 2, "-o is given more than once");
        row("site ../s.csv -o old.lay --sector-radiu 5", 2,
            "unknown option '--sector-radiu'; did you mean '--sector-radius'?\n"
            "vltlayers: try 'vltlayers site --help'\n");
        row("site ../s.csv -o old.lay --json=1", 2, "--json takes no value");
        row("snapshot ../s.csv -o a.png", 1, "../s.csv: this is a table: make a layer");
        row("site - -o old.lay", 2, "the standard input is not read");
        row("paint ../s.csv", 2, "unknown command: paint\nvltlayers: try 'vltlayers --help'\n");
        row("sites ../s.csv", 2, "; did you mean 'site'?");
        row("help stie", 2, "; did you mean 'site'?");
    }

    void refusesAndWritesNothing()
    {
        writeFile(path(u"s.csv"_s), Table);
        writeFile(path(u"c.gvw"_s), "DEM Layers\n");
        writeFile(path(u"unplaced.csv"_s), "Site ID,Longitude,Latitude\nA,east,north\nB,,\n");
        writeFile(path(u"links.csv"_s), "Name,TX Longitude,TX Latitude,RX Longitude,RX Latitude\n"
                                        "A,1.5,45,1.6,45\n");
        writeFile(path(u"meters.csv"_s), "Site ID,X,Y\nA,652000,6862000\n");
        writeFile(path(u"elsewhere/old.lay"_s), "old");

        m_program->checkRefusal();
    }

    void writesLayersToTheStandardOutput()
    {
        writeFile(path(u"s.csv"_s), Table);

        const Run file = start(u"site ../s.csv -o o.lay"_s);
        const Run output = start(u"site ../s.csv -o -"_s);

        QCOMPARE(file.status + output.status, 0);
        QCOMPARE(output.output, readFile(path(u"elsewhere/o.lay"_s)));
    }

    void reportsErrorsToPrograms()
    {
        writeFile(path(u"s.csv"_s), Table);

        const Run refused = start(u"site ../no.csv -o o.lay --json"_s);
        const Run misused = start(u"site ../s.csv --json"_s);
        const Run several = start(u"info ../s.csv ../no.csv --json"_s);

        const QJsonObject error = QJsonDocument::fromJson(refused.output).object();
        QCOMPARE(error.value(u"file"_s).toString(), u"../no.csv"_s);
        QCOMPARE(error.value(u"error"_s).toString(),
                 u"This file can't be open as a site file (the file does not exist)"_s);
        QCOMPARE(error.value(u"exit"_s).toInt(), 1);
        const QJsonObject usage = QJsonDocument::fromJson(misused.output).object();
        QVERIFY(usage.value(u"file"_s).isNull() && usage.value(u"exit"_s).toInt() == 2);
        QCOMPARE(several.status, 1);
        const QJsonArray tables =
            QJsonDocument::fromJson(several.output).object().value(u"tables"_s).toArray();
        QCOMPARE(tables.at(0).toObject().value(u"rows"_s).toInt(), 2);
        QCOMPARE(tables.at(1).toObject(), error);
    }

    void speaksFrenchOfItself()
    {
        QVERIFY(QFile::link(u"" VLT_INSTALLATION "/addons/telecom/MESSAGES"_s,
                            path(u"install dir/addons/telecom/MESSAGES"_s)));

        const Run help = start(u"site --help --language fr"_s);
        const Run misused = start(u"site t.csv -oo --language fr --sector-radius huit"_s);

        writeFile(path(u"s.csv"_s), "Note,Longitude,Latitude\nA,,45\nB,3,45\n");
        writeFile(path(u"s.csv.columns.json"_s), R"({"version": 1, "roles": {"siteId": "Note"}})");
        const QByteArray info = start(u"info ../s.csv --language fr"_s).output;

        for (const QString &line :
             {u"  ligne 2, colonne Longitude\u00a0: la coordonnée est vide\n"_s,
              u": Note\u00a0: indiqué dans s.csv.columns.json\n"_s})
            QVERIFY2(info.contains(line.toUtf8()), info.constData());
        QVERIFY(help.output.startsWith("Utilisation\u00a0: vltlayers site "));
        QVERIFY(help.output.contains("Rayon des secteurs en m\u00e8tres, de 0.01"));
        QCOMPARE(misused.errors, QByteArray("vltlayers: --sector-radius attend un nombre de 0.01 "
                                            "\u00e0 100000000, pas \u00ab\u00a0huit\u00a0\u00bb\n"
                                            "vltlayers: essayez 'vltlayers site --help'\n"));
    }

    void helpsAndTellsItsVersion()
    {
        for (const QString &arguments : {u"--help"_s, u"site -h"_s, u"help"_s})
            QVERIFY(start(arguments).output.contains("Examples:"));
        const Run site = start(u"help site"_s);
        QVERIFY(site.output.startsWith("Usage: vltlayers site [OPTION]... TABLE -o OUT.lay\n"));
        QVERIFY(site.output.contains("  1 = Pure colors / Couleurs pures\n"));
        for (const char *library : {"\nQt 6.", "\nGDAL 3.", "\nPROJ ", "\nOpenSceneGraph 3."})
            QVERIFY(start(u"--version"_s).output.contains(library));
        const Run nothing = start(QString());
        QVERIFY(nothing.output.contains("Commands:") && nothing.status == 2);
        QVERIFY(start(u"--version"_s).output.startsWith("vltlayers 0."));
    }

private:
    QString path(const QString &name) const { return m_program->path(name); }

    template<typename Arguments>
    Run start(const Arguments &arguments) const
    {
        return m_program->start(arguments);
    }

    std::unique_ptr<ProgramRun> m_program;
};

QTEST_GUILESS_MAIN(tst_vltlayers)
#include "tst_vltlayers.moc"
