#include "geodata/LinkCheck.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>

#include <gdal_priv.h>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vlt::geodata;

/// Reading all links of a table, as the program does.
class tst_LinkCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        QByteArray table = "Name;Site A;Site B;Longitude A;Latitude A;Longitude B;Latitude B;"
                           "Frequency A (MHz);Frequency B (MHz)\n";
        for (int i = 0; i < Rows; ++i)
            table += "L" + QByteArray::number(i) + ";A;B;2.5;48;" +
                     (i % 1000 == 7 ? "east" : "2.6") + ";48;;" + (i % 2 ? "7000\n" : "\n");
        writeFile(path(), table);
    }

    void putsTheEndsOfEveryLinkTogether()
    {
        QList<double> shares;

        const auto read =
            readLinkCheck(u"link:"_s + path(), {u"/nowhere/t.tif"_s, {}}, [&](double share) {
                shares << share;
                return true;
            });

        QVERIFY(read && *read);
        const LinkCheck &check = read->value();
        QCOMPARE(check.placement.features, Rows);
        QCOMPARE(check.placement.placed, Rows - Rows / 1000);
        QCOMPARE(check.links.size(), Rows);
        const LinkReport &link = check.links.at(1001);
        QCOMPARE(link.row, 1003); // the header is row 1
        QCOMPARE(link.name + link.endA + link.endB, u"L1001AB"_s);
        QCOMPARE(link.frequencyMHz, std::optional<double>(7000)); // of both ends
        QVERIFY(!check.links.at(1000).frequencyMHz);
        QVERIFY(!check.links.at(1007).isPlaced && !check.links.at(1007).lengthM);
        QVERIFY(std::any_of(check.problems.listed.begin(), check.problems.listed.end(),
                            [](const vlt::Problem &problem) { return problem.row == 1009; }));
        QVERIFY(check.terrainProblem);
        QVERIFY(shares.size() > 1 && std::is_sorted(shares.begin(), shares.end()));
        QVERIFY(shares.last() <= 1);
    }

    void stopsWhenAsked()
    {
        for (const int question : {1, 2}) {
            int asked = 0;

            const auto check =
                readLinkCheck(u"link:"_s + path(), {}, [&](double) { return ++asked < question; });

            QVERIFY(!check);
            QCOMPARE(asked, question);
        }
    }

private:
    static constexpr qint64 Rows = 20000;

    QString path() const { return m_folder.filePath(u"t.csv"_s); }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_LinkCheck)
#include "tst_LinkCheck.moc"
