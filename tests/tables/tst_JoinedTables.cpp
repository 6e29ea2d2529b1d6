#include "DriverTesting.h"
#include "support/Cases.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Tables that another file completes.
class tst_JoinedTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        GDALAllRegister();
        m_folder.write("sites.csv", "Site ID,Longitude,Latitude\n0012,2.1,48.1\nB,2.2,48.2\n"
                                    "b2,2.3,48.3\n");
        m_folder.write("links.csv",
                       "Link;From;To\nL1;12;north hill\nL2;B;12\nL3;B;X9\nL4;B;Hill\n");
        m_folder.write("ends.csv",
                       "Code,Site name,Lon,Lat\n12,South,2.1,48.1\nB,North Hill,2.2,48.2\n"
                       "C,Hill,2.3,48.3\nD,Hill,3.3,48.3\nE,Gap,,\n");
        m_folder.write("own.csv", "Site ID,X,Y,Transmitter-1 AZIMUTH\n12,2.1,48.1,5\n");
        m_folder.write("text.csv", "Site ID,Comment\n12,new\nB,old\n");
    }

    void givesSitesTheTransmittersOfAFile()
    {
        const Warnings warnings;
        // the name has a comma, as a part of the connection
        m_folder.write("a, b.csv", Cells + "12.0,A,240\n");
        const GDALDatasetUniquePtr dataset = m_folder.open("site:sectors=a, b.csv,", "sites.csv");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(u'\n')));
        const CPLStringList files(dataset->GetFileList());

        QCOMPARE(transmittersOf(*dataset), (QStringList{u"S1 30, A 240"_s, u"S1 120"_s, {}}));
        QCOMPARE(problemsOf(*dataset->GetLayer(0)),
                 (QStringList{
                     u"COUNT=2"_s,
                     u"PROBLEM_1=4|Cell site|Warning|in the file \"a, b.csv\": the site \"C\" is "
                     "not in the table of sites: the transmitter is left out"_s,
                     u"PROBLEM_2=||Warning|in the file \"a, b.csv\": sites without a transmitter: "
                     "1"_s}));
        QCOMPARE(files.Count(), 2);
        QCOMPARE(QByteArray(files[1]), m_folder.path("a, b.csv"));
    }

    void seesThatTheOtherFileHasChanged()
    {
        m_folder.write("cells.csv", Cells);
        QCOMPARE(transmittersOf(*open("cells.csv")).constFirst(), u"S1 30"_s);
        m_folder.write("cells.csv", Cells + "12,S2,200\n");

        QCOMPARE(transmittersOf(*open("cells.csv")).constFirst(), u"S1 30, S2 200"_s);
    }

    void keepsTransmittersOfItsOwn()
    {
        m_folder.write("cells.csv", Cells);
        const GDALDatasetUniquePtr dataset = m_folder.open("site:sectors=cells.csv,", "own.csv");

        QVERIFY(problemsOf(*dataset->GetLayer(0))
                    .contains(u"PROBLEM_1=||Warning|the table has transmitters of its own: those "
                              "in the file \"cells.csv\" are not used"_s));
    }

    void refusesAFileThatCannotComplete_data()
    {
        const Cases<QByteArray, QString> row({"file", "reason"});
        row("missing", "none.csv", "the file \"none.csv\" cannot be used: the file does not exist");
        row("no transmitters", "text.csv",
            "the file \"text.csv\" cannot be used: no columns of transmitters with the ids or "
            "names of these sites were recognized");
        row("not local", "/vsimem/a.csv", "tables are read from local files only");
    }
    void refusesAFileThatCannotComplete()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, reason);
        const Warnings warnings;

        QVERIFY(!open(file));
        QCOMPARE(warnings.texts.value(0).section(u": "_s, 1), reason);
    }

    void givesLinksThePositionsOfNamedSites()
    {
        const Warnings warnings;
        const GDALDatasetUniquePtr dataset = m_folder.open("link:sites=ends.csv,", "links.csv");
        QVERIFY2(dataset, qPrintable(warnings.texts.join(u'\n')));
        OGRLayer &layer = *dataset->GetLayer(0);
        QStringList lines;
        while (const OGRFeatureUniquePtr link{layer.GetNextFeature()})
            lines += link->GetGeometryRef()
                         ? QString::fromStdString(link->GetGeometryRef()->exportToWkt())
                         : QString();

        QCOMPARE(
            lines,
            (QStringList{
                u"LINESTRING (2.1 48.1,2.2 48.2)"_s, u"LINESTRING (2.2 48.2,2.1 48.1)"_s, {}, {}}));
        QVERIFY(QByteArray(layer.GetSpatialRef()->GetAuthorityCode(nullptr)) == "4326");
        const QString problems = problemsOf(layer).join(u'\n');
        for (
            const QString &problem :
            {u"=4|To|Error|the site \"X9\" is not in the table of sites: the end has no position"_s,
             u"=5|To|Error|the name \"Hill\" stands for several places in the table of sites: the "
             "end has no position"_s,
             u"=6|Lon|Warning|in the file \"ends.csv\": the coordinate is empty"_s})
            QVERIFY2(problems.contains(problem), qPrintable(problems));
    }

private:
    /// Opens the sites with an open option; the path is relative to the sites.
    GDALDatasetUniquePtr open(const QByteArray &second) const
    {
        const QByteArray option = "SECTORS=" + second;
        const char *const options[] = {option.constData(), nullptr};
        return GDALDatasetUniquePtr(GDALDataset::Open(
            ("site:" + m_folder.path("sites.csv")).constData(), GDAL_OF_VECTOR, nullptr, options));
    }

    /// The ids and azimuths of the transmitters of each site.
    static QStringList transmittersOf(GDALDataset &dataset)
    {
        QStringList sites;
        OGRLayer &layer = *dataset.GetLayer(0);
        while (const OGRFeatureUniquePtr site{layer.GetNextFeature()}) {
            QStringList transmitters;
            for (int n = 1; n <= 2; ++n) {
                const QByteArray prefix = "Transmitter-" + QByteArray::number(n);
                const int id = site->GetFieldIndex(prefix + " Sector ID");
                const int azimuth = site->GetFieldIndex(prefix + " Azimuth (\u00B0)");
                if (id >= 0 && site->IsFieldSetAndNotNull(id))
                    transmitters += QString::fromUtf8(site->GetFieldAsString(id)) + u' ' +
                                    QString::fromUtf8(site->GetFieldAsString(azimuth));
            }
            sites += transmitters.join(u", "_s);
        }
        return sites;
    }

    static inline const QByteArray Cells = "Cell site,Sector,Azimuth\n12,S1,30\nb,S1,120\nC,S1,0\n";
    TableFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_JoinedTables)
#include "tst_JoinedTables.moc"
