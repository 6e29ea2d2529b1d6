#include "sites/SiteFileInfo.h"

#include <QTest>

using namespace vlt::sites;

class tst_SiteFileRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void choosesCoordinateSystems_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("project");
        QTest::addColumn<QString>("terrain");
        QTest::addColumn<QString>("source");
        QTest::addColumn<QString>("target");

        const auto row = [](const char *unit, const char *file, const char *project,
                            const char *terrain, const char *source, const char *target) {
            QTest::addRow("%s, file '%s', project '%s', terrain '%s'", unit, file, project, terrain)
                << QString::fromLatin1(unit) << QString::fromLatin1(file)
                << QString::fromLatin1(project) << QString::fromLatin1(terrain)
                << QString::fromLatin1(source) << QString::fromLatin1(target);
        };
        row("DMS", "", "", "", "4326", "4326");
        row("DMS", "", "2154", "32631", "4326", "2154");
        row("DMS", "", "", "32631", "4326", "32631");
        row("DEGREES", "4171", "", "", "4171", "4326");
        row("", "0", "", "", "4326", "4326");
        row("METERS", "0", "", "", "", "");
        row("METERS", "", "", "32631", "32631", "32631");
        row("METERS", "27572", "", "", "27572", "27572");
        row("METERS", "27572", "", "32631", "27572", "32631");
        row("METERS", "", "2154", "", "", "2154");
        row("meters", "", "", "", "4326", "4326");
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

    void namesTheSiteColumnByFormat_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("column");

        QTest::newRow("asset") << QStringLiteral("ASSET") << QStringLiteral("Site name");
        QTest::newRow("atoll") << QStringLiteral("Atoll export") << QStringLiteral("NAME");
        QTest::newRow("mentum") << QStringLiteral("mentum 5") << QStringLiteral("SITE ID");
        QTest::newRow("generic") << QStringLiteral("an asset") << QStringLiteral("Site ID");
        QTest::newRow("none") << QString() << QStringLiteral("Site ID");
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

    void saysWhyAFileDoesNotOpen()
    {
        const auto info = readSiteFileInfo(QStringLiteral("/nowhere/sites.csv"), {});

        QVERIFY(!info);
        QCOMPARE(info.error().key, QStringLiteral("MESS_ERR_OPEN_SITE"));
        QVERIFY(!info.error().detail.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_SiteFileRules)
#include "tst_SiteFileRules.moc"
