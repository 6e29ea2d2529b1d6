#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray Table = "Site ID,Longitude,Latitude,Transmitter-1 Azimuth (\xc2\xb0),"
                         "Transmitter-1 Height (m),Transmitter-2 Azimuth (\xc2\xb0)\n"
                         "A,1.5,45,10,30,130\nB,2.5,45.5,20,25,140\n";

const QByteArray FirstRun =
    "data_folder=addons/telecom/pylons,pylon_type=monopole_panel,pylon_width=2.5,sector_colors="
    "ff0000ff 00ff00ff 0000ffff ffff00ff ff00ffff 00ffffff,sector_properties=200 20 2,"
    "transmitter_scale=100,lods=10000 1000,";

struct Run
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

void writeFile(const QString &path, const QByteArray &content)
{
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What stands between two marks of a layer file.
QByteArray element(const QByteArray &layer, const QByteArray &name)
{
    const QByteArray open = '<' + name + "><![CDATA[";
    const qsizetype start = layer.indexOf(open) + open.size();
    return layer.mid(start, layer.indexOf("]]></" + name + '>') - start);
}

} // namespace

class tst_vltlayers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        const QString install = path("install dir");
        QVERIFY(QDir().mkpath(install + QStringLiteral("/addons/telecom")));
        QVERIFY(QFile::link(QStringLiteral(VLT_DRIVERS), install + QStringLiteral("/driver")));
        QVERIFY(QFile::link(QStringLiteral(VLT_PYLONS),
                            install + QStringLiteral("/addons/telecom/pylons")));
        writeFile(install + QStringLiteral("/MESSAGES/own_fr.ts"),
                  "<TS version='2.1' language='fr'><context><message id='MESS_ERR_OPEN_SITE'>"
                  "<source>x</source><translation>Fichier illisible</translation></message>"
                  "<message id='MESS_SITES'><source>x</source><translation>Relais \xc3\xa9lev\xc3"
                  "\xa9s</translation></message></context></TS>");
        QVERIFY(QDir().mkpath(path("elsewhere")));
    }

    void makesALayerFromAnotherDirectory_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("inLayer");

        const auto row = [](const char *table, const char *project, const char *inLayer) {
            QTest::addRow("%s, project %s", table, project)
                << QString::fromUtf8(table) << QString::fromUtf8(project)
                << QString::fromUtf8(inLayer);
        };
        row("sites.csv", "city.gvw", "sites.csv");
        row("données brutes/mes sites é.csv", "a project/ville é.gvw",
            "../données brutes/mes sites é.csv");
        row("50%/a,b=c %1 100%.csv", "city.gvw", "50%/a,b=c %1 100%.csv");
        row("it's \"here\"/s&<t>.csv", "it's \"here\"/c.gvw", "s&<t>.csv");
        row("-o.csv", "city.gvw", "-o.csv");
    }

    void makesALayerFromAnotherDirectory()
    {
        QFETCH(QString, table);
        QFETCH(QString, project);
        QFETCH(QString, inLayer);
        writeFile(path(table), Table);
        writeFile(path(project), "DEM Layers\nReference Projection : 2154\n");

        const Run run = start({QStringLiteral("site"), QStringLiteral("../") + table,
                               QStringLiteral("--project"), QStringLiteral("../") + project,
                               QStringLiteral("-o"), QStringLiteral("out %2.lay")});

        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.output, QByteArray());
        const QByteArray layer = readFile(path("elsewhere/out %2.lay"));
        QCOMPARE(element(layer, "source"),
                 "site:s_srs=4326,t_srs=2154," + FirstRun + inLayer.toUtf8());
        // The columns can only be there when the relative path was found from the project.
        const QByteArray page = element(layer, "description");
        QVERIFY(page.contains("[Site ID]"));
        QVERIFY(page.contains("<tr><td>Azimuth</td><td>[Transmitter-1 Azimuth (\xc2\xb0)]</td>"
                              "<td>[Transmitter-2 Azimuth (\xc2\xb0)]</td></tr>"));
        QVERIFY(page.contains("<tr><td>Height</td><td>[Transmitter-1 Height (m)]</td></tr>"));
    }

    void writesEveryPanelValueAndTheLanguage()
    {
        writeFile(path("s.csv"), Table);

        const Run run =
            start(QStringLiteral("site ../s.csv --output o.lay --source-srs=EPSG:4326 "
                                 "--target-srs 32631 --sector-height 30.5 --sector-radius 150.9 "
                                 "--sector-spacing 0 --sector-colors 7 --transparency 50 "
                                 "--symbolic-distance 5000 --pylon-type lattice_panel "
                                 "--pylon-width 1e1 --antenna-size 0 --realistic-distance 1 "
                                 "--language fr --json")
                      .split(QLatin1Char(' ')));

        QCOMPARE(run.errors, QByteArray());
        const QByteArray layer = readFile(path("elsewhere/o.lay"));
        QCOMPARE(element(layer, "source"),
                 "site:s_srs=4326,t_srs=32631,data_folder=addons/telecom/pylons,"
                 "pylon_type=lattice_panel,pylon_width=10,sector_colors=ff000040 00ff0040 "
                 "0000ff40,sector_properties=150 30.5 0,transmitter_scale=0,lods=5000 1," +
                     path("s.csv").toUtf8());
        QCOMPARE(element(layer, "title"), QByteArray("Relais \xc3\xa9lev\xc3\xa9s"));
        QVERIFY(element(layer, "description").contains("<tr><td>Hauteur</td>"));
        const QJsonObject told = QJsonDocument::fromJson(run.output).object();
        QCOMPARE(told.value(QStringLiteral("sites")).toInt(), 2);
        QCOMPARE(told.value(QStringLiteral("layer")).toString(), path("elsewhere/o.lay"));
    }

    void writesSystemsAsTheWizardDoes_data()
    {
        QTest::addColumn<QString>("given");
        QTest::addColumn<QByteArray>("carried");
        QTest::newRow("any case, blanks") << QStringLiteral(" epsg:32631 ") << QByteArray("32631");
        QTest::newRow("bare number") << QStringLiteral("32631") << QByteArray("32631");
        QTest::newRow("another authority")
            << QStringLiteral("ESRI:102100") << QByteArray("ESRI:102100");
    }

    void writesSystemsAsTheWizardDoes()
    {
        QFETCH(QString, given);
        QFETCH(QByteArray, carried);
        writeFile(path("s.csv"), Table);

        const Run run = start({QStringLiteral("site"), QStringLiteral("../s.csv"),
                               QStringLiteral("-oo.lay"), QStringLiteral("--source-srs"),
                               QStringLiteral("EPSG:4326"), QStringLiteral("--target-srs"), given});

        QCOMPARE(run.errors, QByteArray());
        const QByteArray source = element(readFile(path("elsewhere/o.lay")), "source");
        QVERIFY2(source.startsWith("site:s_srs=4326,t_srs=" + carried + ",data_folder="),
                 source.constData());
    }

    void speaksFrenchOfTables_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("text");
        QTest::newRow("a problem of a row")
            << QStringLiteral("Site ID,Longitude,Latitude\nA,\"100%2 \"\"E\"\" %1\",45\nB,3,45\n")
            << QStringList{QStringLiteral("info")}
            << QStringLiteral("la coordonnée «\u00a0100%2 \"E\" %1\u00a0» ne peut "
                              "pas être lue\u00a0: ce n'est pas un angle");
        QTest::newRow("why a file is refused")
            << QStringLiteral("{\"a\": [1, 2]}") << QStringList{QStringLiteral("info")}
            << QStringLiteral("Fichier illisible (cela ressemble à du JSON, pas à une table)");
        QTest::newRow("a system")
            << QStringLiteral("Site ID,Longitude,Latitude\nA,2,45\n")
            << QStringList{QStringLiteral("site"), QStringLiteral("-oo.lay"),
                           QStringLiteral("--source-srs"), QStringLiteral("a: \"1\"")}
            << QStringLiteral(
                   "s.csv: le système de coordonnées «\u00a0a: \"1\"\u00a0» est inconnu");
    }

    void speaksFrenchOfTables()
    {
        QFETCH(QString, table);
        QFETCH(QStringList, arguments);
        QFETCH(QString, text);
        QVERIFY(QFile::link(QStringLiteral(VLT_TABLE_TEXTS),
                            path("install dir/MESSAGES/tables_fr.ts")));
        writeFile(path("s.csv"), table.toUtf8());

        const Run run = start(arguments << QStringLiteral("../s.csv")
                                        << QStringLiteral("--language") << QStringLiteral("fr"));

        const QByteArray told = run.output + run.errors;
        QVERIFY2(told.contains(text.toUtf8()), told.constData());
    }

    void tellsWhichRowsCannotBePlaced()
    {
        writeFile(path("s.csv"), Table + "C,east,45,30,20,150\nD,3,91,30,20,150\n");

        const Run info =
            start({QStringLiteral("info"), QStringLiteral("../s.csv"), QStringLiteral("--json")});
        const Run site = start({QStringLiteral("site"), QStringLiteral("../s.csv"),
                                QStringLiteral("-o"), QStringLiteral("o.lay")});
        const Run quiet = start({QStringLiteral("--quiet"), QStringLiteral("site"),
                                 QStringLiteral("../s.csv"), QStringLiteral("-oo.lay")});

        QCOMPARE(info.status, 0);
        const QJsonObject told = QJsonDocument::fromJson(info.output).object();
        QCOMPARE(told.value(QStringLiteral("epsg")).toString().toInt(), 0);
        QCOMPARE(told.value(QStringLiteral("columns")).toObject().value(QStringLiteral("x")),
                 QStringLiteral("Longitude"));
        QList<int> rows;
        for (const QJsonValue problem : told.value(QStringLiteral("problems")).toArray())
            rows << problem.toObject().value(QStringLiteral("row")).toInt();
        QCOMPARE(rows, (QList<int>{4, 5}));
        QCOMPARE(site.status, 0);
        QCOMPARE(site.errors, QByteArray("vltlayers: rows that could not be placed: 2\n"));
        QCOMPARE(quiet.status, 0);
        QCOMPARE(quiet.errors, QByteArray());
    }

    void warnsOfSitesWithoutAName_data()
    {
        QTest::addColumn<QByteArray>("column");
        QTest::addColumn<bool>("warns");

        QTest::newRow("other column") << QByteArray("Name") << true;
        QTest::newRow("other letters") << QByteArray("SITE ID") << false;
    }

    void warnsOfSitesWithoutAName()
    {
        QFETCH(QByteArray, column);
        QFETCH(bool, warns);
        writeFile(path("s.csv"), column + ",Longitude,Latitude\nA,1.5,45\n");
        const QByteArray warning = "column Site ID: the table has no such column";

        const Run info = start({QStringLiteral("info"), QStringLiteral("../s.csv")});
        const Run site = start({QStringLiteral("site"), QStringLiteral("../s.csv"),
                                QStringLiteral("-o"), QStringLiteral("o.lay")});

        QCOMPARE(info.output.contains("Problems : 1\n  " + warning), warns);
        QCOMPARE(info.output.contains("Problems : 0\n"), !warns);
        QCOMPARE(site.status, 0);
        QCOMPARE(site.errors.startsWith("vltlayers: " + warning), warns);
        QCOMPARE(site.errors.isEmpty(), !warns);
    }

    void refusesAndLeavesTheOldLayer_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("message");

        const auto row = [](const char *arguments, int status, const char *message) {
            QTest::newRow(arguments)
                << QString::fromLatin1(arguments) << status << QString::fromUtf8(message);
        };
        row("site ../missing.csv -o old.lay", 1,
            "../missing.csv: This file can't be open as a site file (the file does not exist)");
        row("site ../missing.csv -o old.lay --language fr", 1, "missing.csv: Fichier illisible");
        row("site ../unplaced.csv -o old.lay", 1, "../unplaced.csv: ");
        row("site ../header.csv -o old.lay", 1, "../header.csv: ");
        row("site .. -o old.lay", 1, "..: This file can't be open");
        row("site ../s.csv -o ../s.csv", 1, "one of the input files");
        row("site ../s.csv -o ../link.csv", 1, "one of the input files");
        row("site ../s.csv -o ../c.gvw --project ../c.gvw", 1, "one of the input files");
        row("site ../s.csv -o old.lay --project ../no.gvw", 1, "../no.gvw: Cannot open project");
        row("site ../s.csv -o old.lay --install ../no", 1, "no such install directory");
        row("site ../s.csv -o old.lay --source-srs no-such-system", 1,
            "../s.csv: the coordinate system \"no-such-system\" is not known");
        row("site ../s.csv -o old.lay --target-srs 999999", 1,
            "../s.csv: the coordinate system \"999999\" is not known");
        row("site ../s.csv -o nowhere/o.lay", 1, "nowhere/o.lay: Can't create the layer file");
        row("info ../missing.csv", 1, "../missing.csv: This file can't be open");
        row("site ../s.csv", 2, "-o OUT.lay");
        row("site -o old.lay", 2, "no table");
        row("site ../s.csv ../s.csv -o old.lay", 2, "too many");
        row("site ../s.csv -o old.lay --pylon-width 150.5", 2, "0.1 to 150");
        row("site ../s.csv -o old.lay --pylon-width nan", 2, "0.1 to 150");
        row("site ../s.csv -o old.lay --pylon-width 2,5", 2, "0.1 to 150");
        row("site ../s.csv -o old.lay --antenna-size 1.5", 2, "0 to 300");
        row("site ../s.csv -o old.lay --transparency -1", 2, "0 to 100");
        row("site ../s.csv -o old.lay --pylon-type zero", 2, "monopole_panel");
        row("site ../s.csv -o old.lay --sector-colors 0", 2, "--sector-colors");
        row("info ../s.csv --language de", 2, "fr or en");
        row("info ../s.csv --no-such-option", 2, "no-such-option");
        row("paint ../s.csv", 2, "paint");
        row("", 2, "no command");
    }

    void refusesAndLeavesTheOldLayer()
    {
        QFETCH(QString, arguments);
        QFETCH(int, status);
        QFETCH(QString, message);
        writeFile(path("s.csv"), Table);
        writeFile(path("c.gvw"), "DEM Layers\n");
        writeFile(path("unplaced.csv"), "Site ID,Longitude,Latitude\nA,east,north\nB,,\n");
        writeFile(path("header.csv"), "Site ID,Longitude,Latitude\n");
        writeFile(path("elsewhere/old.lay"), "old");
        QVERIFY(QFile::link(path("s.csv"), path("link.csv")));

        const Run run = start(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));

        QCOMPARE(run.status, status);
        QVERIFY2(run.errors.contains(message.toUtf8()), run.errors.constData());
        QCOMPARE(run.output, QByteArray());
        QCOMPARE(readFile(path("elsewhere/old.lay")), QByteArray("old"));
        QCOMPARE(readFile(path("s.csv")), Table);
        QCOMPARE(QDir(path("elsewhere"))
                     .entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
                 QStringList{QStringLiteral("old.lay")});
    }

    void helpsAndTellsItsVersion()
    {
        for (const char *arguments : {"--help", "info --help", "site -h"}) {
            const Run help = start(QString::fromLatin1(arguments).split(QLatin1Char(' ')));
            QCOMPARE(help.status, 0);
            QVERIFY(help.output.contains("Examples:"));
            QCOMPARE(help.errors, QByteArray());
        }
        QVERIFY(start({QStringLiteral("--version")}).output.startsWith("vltlayers 0."));
    }

private:
    QString path(const char *name) const { return m_dir->filePath(QString::fromUtf8(name)); }
    QString path(const QString &name) const { return m_dir->filePath(name); }

    /// Runs the program in a directory apart from all its files.
    Run start(QStringList arguments) const
    {
        if (!arguments.contains(QLatin1String("--install")))
            arguments << QStringLiteral("--install") << path("install dir");
        if (!arguments.contains(QLatin1String("--language")))
            arguments << QStringLiteral("--language") << QStringLiteral("en");
        QProcess process;
        process.setWorkingDirectory(path("elsewhere"));
        process.start(QStringLiteral(VLT_PROGRAM), arguments);
        process.waitForFinished();
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                process.readAllStandardOutput(), process.readAllStandardError()};
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(tst_vltlayers)
#include "tst_vltlayers.moc"
