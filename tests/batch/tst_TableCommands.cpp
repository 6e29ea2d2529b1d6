#include "ProgramRun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

class tst_TableCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_program = std::make_unique<ProgramRun>(); }

    void readsTablesAsTheUserSays()
    {
        // "Ясенево" in code page 1251, and a comma that is not a delimiter
        const QByteArray name = "\xdf\xf1\xe5\xed\xe5\xe2\xee";
        writeFile(path(u"s.csv"_s), "Site ID|a, b|Longitude|Latitude\n" + name + "|1|37,5|55,6\n");
        const QString how = u" --encoding CP1251 --delimiter BAR --swap-axes"_s;

        const Run info = start(u"info ../s.csv --json"_s + how);
        const Run site = start(u"site ../s.csv -o o.lay"_s + how);
        const Run plain = start(u"site ../s.csv -o plain.lay"_s);
        const Run sheet =
            start(QStringList{u"site"_s, u"../s.csv"_s, u"-oo.lay"_s, u"--sheet"_s, u"A, b"_s});

        const QJsonObject reported = QJsonDocument::fromJson(info.output).object();
        QCOMPARE(reported.value(u"encoding"_s).toString(), u"CP1251"_s);
        QCOMPARE(site.errors, QByteArray());
        const QByteArray source = element(readFile(path(u"elsewhere/o.lay"_s)), "source");
        QVERIFY2(source.contains(
                     "=200 20 2,encoding=CP1251,delimiter=bar,axes=swapped,transmitter_scale=100,"),
                 source.constData());
        const QByteArray other = element(readFile(path(u"elsewhere/plain.lay"_s)), "source");
        QVERIFY2(other.contains("=200 20 2,transmitter_scale=100,"), other.constData());
        QVERIFY2(sheet.errors.contains("there is no sheet called \"A, b\""),
                 sheet.errors.constData());
    }

    void joinsTheTablesThatTheUserNames()
    {
        writeFile(path(u"sites.csv"_s), "Site ID,Longitude,Latitude\nA,37.5,55.6\nB,37.6,55.7\n");
        writeFile(path(u"elsewhere/cells.csv"_s), "Site,Azimuth,Height\nA,30,20\nC,120,20\n");
        writeFile(path(u"links.csv"_s), "Link;Site A;Site B\nL;A;B\n");

        const Run info = start(u"info ../sites.csv --json --sectors cells.csv"_s);
        const Run site = start(u"site ../sites.csv -o o.lay --sectors cells.csv"_s);
        const Run link = start(u"link ../links.csv -o l.lay --sites ../sites.csv"_s);
        const Run wrong = start(u"info ../sites.csv --sites cells.csv"_s);

        QVERIFY2(
            info.output.contains("in the file \\\"cells.csv\\\": the site \\\"C\\\" is not in"),
            info.output.constData());
        QCOMPARE(site.errors, QByteArray());
        const QByteArray sites = element(readFile(path(u"elsewhere/o.lay"_s)), "source");
        QVERIFY2(sites.contains(",sectors=elsewhere/cells.csv,"), sites.constData());
        QCOMPARE(link.errors, QByteArray());
        const QByteArray links = element(readFile(path(u"elsewhere/l.lay"_s)), "source");
        QVERIFY2(links.contains(",sites=sites.csv,"), links.constData());
        QVERIFY2(wrong.errors.contains("--sites needs --link"), wrong.errors.constData());
    }

    void followsTheMappingOfATable()
    {
        const QString table = path(u"cells.csv"_s);
        writeFile(table, "Title\nSite;Lon;Lat;Azimuth;Bearing\nA;2;48;10;70\n");

        const Run info = start(u"info ../cells.csv --header-row 2 --source-srs 4171 --json "
                               "--write-mapping"_s);
        const QByteArray written = readFile(table + u".columns.json"_s);
        const Run beside = start(u"site ../cells.csv -o a.lay"_s);
        writeFile(path(u"elsewhere/other.json"_s),
                  QByteArray(written).replace("\"Azimuth\"", "\"Bearing\""));
        const Run other = start(u"site ../cells.csv -o b.lay --mapping other.json"_s);
        const Run reported = start(u"info ../cells.csv --json --mapping other.json"_s);
        writeFile(table + u".columns.json"_s, "{}");
        const Run broken = start(u"site ../cells.csv -o c.lay"_s);
        const Run none = start(u"site ../cells.csv -o c.lay --mapping none"_s);
        const Run missing = start(u"site ../cells.csv -o c.lay --mapping gone.json"_s);

        QCOMPARE(info.errors, QByteArray());
        QVERIFY2(info.output.contains("cells.csv.columns.json\""), info.output.constData());
        QVERIFY2(written.contains("\"sourceSrs\": \"EPSG:4171\"") &&
                     written.contains("\"azimuth\": \"Azimuth\""),
                 written.constData());
        QCOMPARE(beside.errors, QByteArray());
        const QByteArray first = element(readFile(path(u"elsewhere/a.lay"_s)), "source");
        QVERIFY2(first.contains("s_srs=4171,") && !first.contains("columns="), first.constData());
        QCOMPARE(other.errors, QByteArray());
        const QByteArray second = element(readFile(path(u"elsewhere/b.lay"_s)), "source");
        QVERIFY2(second.contains(",columns=elsewhere/other.json,"), second.constData());
        QVERIFY2(reported.output.contains("\"column\": \"Bearing\""), reported.output.constData());
        QVERIFY2(broken.errors.contains("is not used: it is not a mapping of columns"),
                 broken.errors.constData());
        QCOMPARE(broken.status, 0);
        QCOMPARE(none.errors, QByteArray());
        QCOMPARE(missing.status, 1);
    }

    void writesCures()
    {
        writeFile(path(u"wrong.csv"_s), "Site ID,Longitude,Latitude\nA,2.3,48.8\nB,48.9,2.4\n"
                                        "C,-2.5,48.7\nD,2.4,4.88\nE,2.6,48.9\nF,2.2,48.6\n"
                                        "G,2.3,48.7\nH,2.4,48.8\nI,2.5,48.9\nJ,2.5,48.6\n"
                                        "K,2.3,48.6\nL,2.4,48.7\nM,2.5,48.8\nN,2.2,48.7\n");

        const Run alone = start(u"info ../wrong.csv --cures"_s);
        const Run cured = start(u"info ../wrong.csv --json --write-mapping --cures"_s);
        const Run again = start(u"info ../wrong.csv --json --report cured.csv"_s);

        QVERIFY2(alone.errors.contains("--cures needs --write-mapping"), alone.errors.constData());
        QVERIFY2(cured.output.contains("\"x\": \"48.9\""), cured.output.constData());
        QVERIFY2(!again.output.contains("findings"), again.output.constData());
        const QByteArray report = readFile(path(u"elsewhere/cured.csv"_s));
        QVERIFY2(report.contains("\"48.9 2.4\"\" is corrected to 2.4 48.9\"") &&
                     report.contains(" is corrected to 2.5 48.7\"") &&
                     report.contains(" is corrected to 2.4 48.8\""),
                 report.constData());
    }

    void keepsAMappingThatCannotLieBesideTheTable()
    {
        const QString table = path(u"cells.csv"_s);
        writeFile(table, "Site;Lon;Lat;Azimuth\nA;2;48;10\n");
        QVERIFY(QDir().mkdir(table + u".columns.json"_s)); // root may write everywhere else
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const auto run = [&](const QString &arguments, const QString &data) {
            environment.insert(u"XDG_DATA_HOME"_s, path(data));
            return m_program->start(arguments.split(u' '), environment);
        };

        const Run info = run(u"info ../cells.csv --json --write-mapping"_s, u"data"_s);
        const Run site = run(u"site ../cells.csv -o o.lay"_s, u"data"_s);
        const Run nowhere = run(u"info ../cells.csv --write-mapping"_s, u"cells.csv"_s);

        const QString written =
            QJsonDocument::fromJson(info.output).object().value(u"mapping"_s).toString();
        QVERIFY2(written.startsWith(path(u"data/veltaro/telecom/mappings/"_s)),
                 qPrintable(written));
        QVERIFY(readFile(written).contains("\"azimuth\": \"Azimuth\""));
        QCOMPARE(site.errors, QByteArray());
        const QByteArray source = element(readFile(path(u"elsewhere/o.lay"_s)), "source");
        QVERIFY2(source.contains(",columns=" + written.toUtf8() + ','), source.constData());
        QCOMPARE(nowhere.status, 1);
        QVERIFY2(nowhere.errors.contains("columns.json"), nowhere.errors.constData());
    }

    void accountsForEveryRow()
    {
        const QByteArray table = "Site ID;Longitude;Latitude;Azimuth\nCh\xE2teau;2,3;48,8;0\n"
                                 "Ch\xE2teau;2,3;48,8;120\nM\xE9tro;2,4;;0\nTotal;;;3\n";
        writeFile(path(u"rows.csv"_s), table);

        const Run info = start(u"info ../rows.csv --encoding CP1252 --json "
                               "--report report.csv --rejects rejects.csv"_s);
        const Run same = start(u"info ../rows.csv --encoding CP1252 --report ../rows.csv"_s);

        QCOMPARE(info.errors, QByteArray());
        const QJsonObject counts = QJsonDocument::fromJson(info.output)[u"rowCounts"_s].toObject();
        QCOMPARE(
            counts,
            QJsonObject({{u"rows"_s, 4}, {u"used"_s, 1}, {u"merged"_s, 1}, {u"leftOut"_s, 2}}));
        QCOMPARE(QString::fromUtf8(readFile(path(u"elsewhere/report.csv"_s))),
                 u"row,fate,site or link,first row,reason,columns,table\n"
                 "2,used,Château,2,,,rows\n3,merged,Château,2,,,rows\n"
                 "4,left out,Métro,,the coordinate is empty,Latitude,rows\n"
                 "5,left out,,,a row of sums is left out,,rows\n"_s);
        QCOMPARE(readFile(path(u"elsewhere/rejects.csv"_s)),
                 QByteArray("Site ID;Longitude;Latitude;Azimuth\nM\xE9tro;2,4;;0\n"));
        QCOMPARE(same.status, 1);
        QCOMPARE(readFile(path(u"rows.csv"_s)), table);
    }

    void warnsOfRowsWithoutAPlaceAndOfMissingNames()
    {
        writeFile(path(u"s.csv"_s), "Note,Longitude,Latitude\nA,1.5,45\nB,east,45\nC,3,91\n");
        const QByteArray noName = "column Site ID: the table has no such column";

        const Run info = start(u"info ../s.csv --json"_s);
        const Run site = start(u"site ../s.csv -o o.lay"_s);
        const Run quiet = start(u"--quiet site ../s.csv -oo.lay"_s);

        QCOMPARE(info.status, 0);
        const QJsonObject reported = QJsonDocument::fromJson(info.output).object();
        QList<int> rows;
        for (const QJsonValue problem : reported.value(u"problems"_s).toArray())
            rows << problem.toObject().value(u"row"_s).toInt();
        QCOMPARE(rows.mid(rows.size() - 2), (QList<int>{3, 4}));
        QCOMPARE(site.status, 0);
        QVERIFY(site.errors.contains("vltlayers: " + noName));
        QVERIFY(site.errors.contains("vltlayers: rows that could not be placed: 2\n"));
        QCOMPARE(quiet.errors, QByteArray());
    }

    void takesSitesWithColumnsOfLinks()
    {
        writeFile(path(u"s.csv"_s),
                  "Site ID,Longitude,Latitude,TX Longitude,TX Latitude,RX Longitude,RX Latitude\n"
                  "A,1.5,45,1.5,45,1.6,45\n");

        const Run run = start(u"site ../s.csv -o o.lay"_s);

        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(run.status, 0);
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

QTEST_GUILESS_MAIN(tst_TableCommands)
#include "tst_TableCommands.moc"
