#include "geodata/LayerProblems.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QtTest>

#include <gdal_priv.h>

#include <algorithm>

using namespace vlt::geodata;

/// Reading all rows of a table, as the program does.
class tst_SiteCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        QVERIFY(m_folder.isValid());
        QByteArray table = "Site ID;Longitude;Latitude\n";
        for (int i = 0; i < Rows; ++i)
            table += "S" + QByteArray::number(i) + (i % 1000 == 7 ? ";east;48\n" : ";2.5;48\n");
        writeFile(path(), table);
    }

    void countsSitesAndListsProblems()
    {
        QList<double> shares;

        const auto check = readSiteCheck(connection(), [&](double share) {
            shares << share;
            return true;
        });

        QVERIFY(check && *check);
        QCOMPARE(check->value().placement.features, Rows);
        QCOMPARE(check->value().placement.placed, Rows - Rows / 1000);
        QCOMPARE(check->value().problems.count, Rows / 1000);
        QCOMPARE(check->value().problems.listed.size(), Rows / 1000);
        QCOMPARE(check->value().problems.listed.at(1).row, 1009); // the header is row 1
        QVERIFY(shares.size() > 1 && std::is_sorted(shares.begin(), shares.end()));
        QVERIFY(shares.last() <= 1);
    }

    void stopsWhenAsked_data()
    {
        const Cases<int> row({"question"});
        row("before the first row", 1);
        row("on the way", 2);
    }
    void stopsWhenAsked()
    {
        QFETCH(int, question);
        int asked = 0;

        const auto check = readSiteCheck(connection(), [&](double) { return ++asked < question; });

        QVERIFY(!check);
        QCOMPARE(asked, question);
    }

    /// A workbook that is truncated during the read must not be taken as one with fewer sites.
    void reportsThatTheFileWasDamagedOnTheWay()
    {
        const QString copy = m_folder.filePath(QStringLiteral("cut.xlsx"));
        QVERIFY(QFile::copy(qEnvironmentVariable("VLT_WORKBOOK"), copy));
        QVERIFY(QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner));

        const auto check = readSiteCheck(QStringLiteral("site:") + copy,
                                         [&](double) { return QFile::resize(copy, 500); });

        QVERIFY(check && !*check);
        QVERIFY2(check->error().detail.startsWith(QStringLiteral("the ")),
                 qPrintable(check->error().detail));
    }

private:
    static constexpr qint64 Rows = 100000;

    QString path() const { return m_folder.filePath(QStringLiteral("t.csv")); }
    QString connection() const { return QStringLiteral("site:") + path(); }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_SiteCheck)
#include "tst_SiteCheck.moc"
