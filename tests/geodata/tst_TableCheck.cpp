#include "geodata/LayerProblems.h"
#include "geodata/LinkCheck.h"
#include "geodata/TableExcerpt.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>

#include <gdal_priv.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vlt::geodata;

/// Reading all rows of a table, as the program does.
class tst_TableCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        QByteArray sites = "Site ID;Longitude;Latitude\n";
        for (int i = 0; i < Sites; ++i)
            sites +=
                "S" + QByteArray::number(i) +
                (i % 1000 == 7 ? ";east;48\n" : ";2." + QByteArray::number(100000 + i) + ";48\n");
        writeFile(m_sites, sites);
        QByteArray links = "Name;Site A;Site B;Longitude A;Latitude A;Longitude B;Latitude B;"
                           "Frequency A (MHz);Frequency B (MHz)\n";
        for (int i = 0; i < Links; ++i)
            links += "L" + QByteArray::number(i) + ";A;B;2.5;48;" +
                     (i % 1000 == 7 ? "east" : "2.6") + ";48;;" + (i % 2 ? "7000\n" : "\n");
        writeFile(m_links, links);
    }

    void init() { m_shares.clear(); }

    void countsSitesAndListsProblems()
    {
        const auto read = readSiteCheck(u"site:"_s + m_sites, progress());

        QVERIFY(read && *read);
        const SiteCheck &check = read->value();
        QCOMPARE(check.placement.features, Sites);
        QCOMPARE(check.placement.placed, Sites - Sites / 1000);
        QCOMPARE(check.problems.count, Sites / 1000);
        QCOMPARE(check.problems.listed.size(), Sites / 1000);
        QCOMPARE(check.problems.listed.at(1).row, 1009); // the header is row 1
        compareShares();
    }

    void putsTheEndsOfEveryLinkTogether()
    {
        const auto read =
            readLinkCheck(u"link:"_s + m_links, {u"/nowhere/t.tif"_s, {}}, progress());

        QVERIFY(read && *read);
        const LinkCheck &check = read->value();
        QCOMPARE(check.placement.features, Links);
        QCOMPARE(check.placement.placed, Links - Links / 1000);
        QCOMPARE(check.links.size(), Links);
        const LinkReport &link = check.links.at(1001);
        QCOMPARE(link.row, 1003);
        QCOMPARE(link.name + link.endA + link.endB, u"L1001AB"_s);
        QCOMPARE(link.frequencyMHz, std::optional<double>(7000)); // of both ends
        QVERIFY(!check.links.at(1000).frequencyMHz);
        QVERIFY(!check.links.at(1007).isPlaced && !check.links.at(1007).lengthM);
        QVERIFY(std::any_of(check.problems.listed.begin(), check.problems.listed.end(),
                            [](const vlt::Problem &problem) { return problem.row == 1009; }));
        QVERIFY(check.terrainProblem);
        compareShares();
    }

    void stopsWhenAsked()
    {
        for (const int question : {1, 2}) { // before the first row and on the way
            int asked = 0;
            const auto goOn = [&](double) { return ++asked < question; };

            QVERIFY(!readSiteCheck(u"site:"_s + m_sites, goOn));
            QCOMPARE(asked, question);
            asked = 0;
            QVERIFY(!readLinkCheck(u"link:"_s + m_links, {}, goOn));
            QCOMPARE(asked, question);
        }
    }

    void readsTheFirstRowsOfATable()
    {
        const QString table = m_folder.filePath(u"excerpt.csv"_s);
        QByteArray text = "Sites of the north;;;\nSite ID;;Longitude;Latitude\n;;deg;deg\n";
        for (int i = 0; i < 100; ++i)
            text += "S\xC3\xA9" + QByteArray::number(i) + ";;2.5;48;\n";
        writeFile(table, text);

        const auto read = readTableExcerpt(u"site:"_s + table);

        QVERIFY(read);
        const TableExcerpt &excerpt = read.value();
        QCOMPARE(excerpt.headerRows, QList<qint64>{2});
        QCOMPARE(excerpt.furtherRows, QList<qint64>{3});
        QCOMPARE(excerpt.columns.size(), 3);
        QCOMPARE(excerpt.columns.last().position, 3);
        QVERIFY(excerpt.rows.size() > 5 && excerpt.rows.size() < 50);
        QCOMPARE(excerpt.rows.first().cells, QStringList(u"Sites of the north"_s));
        QCOMPARE(excerpt.rows.at(3).number, 4);
        QCOMPARE(excerpt.rows.at(3).cells, (QStringList{u"S\u00E90"_s, {}, u"2.5"_s, u"48"_s}));
        QCOMPARE(readTableExcerpt(u"site:"_s + qEnvironmentVariable("VLT_WORKBOOK")).value().sheets,
                 (QStringList{u"Sheet1"_s, u"Sheet2"_s, u"Sheet3"_s}));
    }

    /// A workbook that is truncated during the read must not be taken as one with fewer sites.
    void reportsThatTheFileWasDamagedOnTheWay()
    {
        const QString copy = m_folder.filePath(u"cut.xlsx"_s);
        QVERIFY(QFile::copy(qEnvironmentVariable("VLT_WORKBOOK"), copy));
        QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner));

        const auto check =
            readSiteCheck(u"site:"_s + copy, [&](double) { return QFile::resize(copy, 500); });

        QVERIFY(check && !*check);
        QVERIFY2(check->error().detail.startsWith(u"the "_s), qPrintable(check->error().detail));
    }

private:
    static constexpr qint64 Sites = 100000;
    static constexpr qint64 Links = 20000;

    vlt::Progress progress()
    {
        return [this](double share) {
            m_shares << share;
            return true;
        };
    }

    void compareShares() const
    {
        QVERIFY(m_shares.size() > 1 && std::is_sorted(m_shares.begin(), m_shares.end()));
        QVERIFY(m_shares.last() <= 1);
    }

    QTemporaryDir m_folder;
    const QString m_sites = m_folder.filePath(u"sites.csv"_s);
    const QString m_links = m_folder.filePath(u"links.csv"_s);
    QList<double> m_shares;
};

QTEST_GUILESS_MAIN(tst_TableCheck)
#include "tst_TableCheck.moc"
