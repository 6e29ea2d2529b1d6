#include "sites/SiteFileInfo.h"
#include "support/Cases.h"
#include "tables/SystemProblems.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt::sites;

class tst_SiteFileRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesCoordinateSystems_data()
    {
        const Cases<QString, QString, QString, QString, QString, QString> row(
            {"unit", "file", "project", "terrain", "source", "target"});
        row("degrees", "DMS", {}, {}, {}, "4326", "4326");
        row("degrees, project first", "DMS", {}, "2154", "32631", "4326", "2154");
        row("degrees, terrain", "DMS", {}, {}, "32631", "4326", "32631");
        row("degrees, declared", "DEGREES", "4171", {}, {}, "4171", "4326");
        row("no unit", {}, "0", {}, {}, "4326", "4326");
        row("metres", "METERS", "0", {}, {}, {}, {});
        row("metres, terrain", "METERS", {}, {}, "32631", "32631", "32631");
        row("metres, declared", "METERS", "27572", {}, {}, "27572", "27572");
        row("metres, declared, terrain", "METERS", "27572", {}, "32631", "27572", "32631");
        row("metres, project", "METERS", {}, "2154", {}, {}, "2154");
        row("unknown unit", "meters", {}, {}, {}, "4326", "4326");
    }

    void choosesCoordinateSystems()
    {
        QFETCH(QString, unit);
        QFETCH(QString, file);
        QFETCH(QString, project);
        QFETCH(QString, terrain);

        const vlt::geodata::SystemPair chosen =
            vlt::tables::chooseSystems({unit, file, project, terrain});

        QTEST(chosen.source, "source");
        QTEST(chosen.target, "target");
    }

    void offersOtherSystemsThanTheAssumedOne_data()
    {
        const Cases<bool, vlt::tables::AssumedFrom, QString, int, QStringList> row(
            {"undeclared", "from", "chosen", "outside", "cures"});
        using enum vlt::tables::AssumedFrom;
        const QStringList all{u""_s, u"sourceSrs=EPSG:27700"_s, u"sourceSrs=EPSG:29903"_s};
        row("positions fit", true, Terrain, "2154", 0, all.mid(0, 1));
        row("positions lie outside", true, Terrain, "2154", 6, all);
        row("the assumed one is no alternative", true, Name, "27700", 6, {all[0], all[2]});
        row("chosen by the user", true, Name, "2154", 0, all);
        row("nothing to suggest", true, Nothing, {}, 0, all.mid(1));
        row("declared", false, Nothing, "2154", 6, {});
    }

    void offersOtherSystemsThanTheAssumedOne()
    {
        QFETCH(QString, chosen);
        vlt::tables::TableFileInfo file;
        QFETCH(bool, undeclared);
        QFETCH(vlt::tables::AssumedFrom, from);
        file.isUndeclared = undeclared;
        file.assumedFrom = from;
        file.systems.source = from == vlt::tables::AssumedFrom::Name ? u"27700"_s : chosen;
        file.candidates.resize(2);
        file.candidates[0].code = u"EPSG:27700"_s;
        file.candidates[1].code = u"EPSG:29903"_s;
        vlt::geodata::SystemCheck check;
        QFETCH(int, outside);
        check.outsideSource = outside;

        QStringList cures;
        for (const auto &finding : vlt::tables::systemFindings(file, {chosen, {}}, check))
            cures << finding.cure;

        QTEST(cures, "cures");
    }

    void namesTheSiteColumnByFormat_data()
    {
        const Cases<QString, QString> row({"format", "column"});
        row("asset", "ASSET", "Site name");
        row("atoll", "Atoll export", "NAME");
        row("mentum", "mentum 5", "SITE ID");
        row("generic", "an asset", "Site ID");
        row("none", {}, "Site ID");
    }

    void namesTheSiteColumnByFormat()
    {
        QFETCH(QString, format);

        QTEST(siteNameField(format), "column");
    }

    void leavesTheBuiltInDescriptionUnfilled()
    {
        QCOMPARE(vlt::tables::describeTableFile(QStringLiteral("asset"), QStringLiteral("METERS")),
                 QStringLiteral("File format is : %1\nCoordinates are %2 and are specified in %3"));
    }
};

QTEST_GUILESS_MAIN(tst_SiteFileRules)
#include "tst_SiteFileRules.moc"
