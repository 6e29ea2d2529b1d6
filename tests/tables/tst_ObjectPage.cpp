#include "support/Cases.h"
#include "support/Files.h"
#include "tables/ObjectPage.h"

#include <QTemporaryDir>
#include <QTest>

#include <gdal.h>

using namespace Qt::StringLiterals;
using vlt::geodata::FieldValue;

class tst_ObjectPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { GDALAllRegister(); }

    void fillsFieldReferences_data()
    {
        const Cases<QString, QString> row({"page", "filled"});
        row("values", u"<b>[Name]</b> [Height (m)] m"_s, u"<b>A&lt;i&gt; &amp; B</b> 30 m"_s);
        row("no such field", u"[Other] [Name"_s, u"[Other] [Name"_s);
        row("a name with brackets", u"[H [m]] [H]"_s, u"12 7"_s);
        row("a value that looks like a field", u"[Trap]|[H]"_s, u"[H]|7"_s);
        row("without a value", u"a[Empty]b"_s, u"ab"_s);
        row("brackets in brackets", u"[[H]]"_s, u"[7]"_s);
    }
    void fillsFieldReferences()
    {
        QFETCH(QString, page);
        const QList<FieldValue> fields = {{u"Name"_s, u"A<i> & B"_s}, {u"Height (m)"_s, u"30"_s},
                                          {u"H"_s, u"7"_s},           {u"H [m]"_s, u"12"_s},
                                          {u"Trap"_s, u"[H]"_s},      {u"Empty"_s, {}}};
        QTEST(vlt::tables::filledPage(page, fields), "filled");
    }

    /// A site whose sectors are in several rows has the page of its first row.
    void readsThePageOfARow()
    {
        const QTemporaryDir folder;
        writeFile(folder.filePath(u"t.csv"_s),
                  "Site,Longitude,Latitude,Azimuth,Height\n"
                  "A,2.1,48.1,0,30\nA,2.1,48.1,120,30\nB,2.2,48.2,90,25\n,,,,\n");
        const auto layer = [&folder](const QByteArray &page) {
            return writeFile(folder.filePath(u"t.lay"_s),
                             "<?xml version=\"1.0\"?><veltaroLayer kind=\"sites\" version=\"1\">"
                             "<title><![CDATA[T]]></title><source><![CDATA[site:s_srs=4326,"
                             "t_srs=2154,t.csv]]></source><siteField>Site</siteField>"
                             "<description><![CDATA[" +
                                 page + "]]></description></veltaroLayer>");
        };
        const auto pageOf = [&](const QByteArray &page, qint64 row) {
            const auto read = vlt::tables::readObjectPage(layer(page), folder.path(), row);
            return read ? read.value() : read.error().key;
        };
        QCOMPARE(pageOf("<p>[Site]</p>", 2), u"<p>A</p>"_s);
        QCOMPARE(pageOf("<p>[Site]</p>", 4), u"<p>B</p>"_s);
        QVERIFY(pageOf("", 4).contains(u"<td>B</td>"_s));
        const QString path = layer("");
        QCOMPARE(vlt::tables::readFirstRow(path, folder.path(), 3).value(), 2);
        QCOMPARE(vlt::tables::readFirstRow(path, folder.path(), 9).value(), 0);
        writeFile(path, "no layer");
        QCOMPARE(vlt::tables::readObjectPage(path, {}, 2).error().key, u"MESS_CANT_READ_LAYER"_s);
    }
};

QTEST_GUILESS_MAIN(tst_ObjectPage)
#include "tst_ObjectPage.moc"
