#include "DriverTesting.h"
#include "support/Cases.h"

#include <QtTest>

namespace {

constexpr char Table[] = "Site ID;Longitude;Latitude;Height (m);Phone;Note\n"
                         "007;-3,25;47,5;30;+33612345678;a\n"
                         ";;;;;\n"
                         "008;x;47,75;32,5;;\n"
                         "009;-3,5;48;NA;;\"b\nc\"\n";

} // namespace

/// The driver, used with the GDAL library like in any program.
class tst_SiteLayer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        QVERIFY(GDALGetDriverByName("VltTables"));
        QVERIFY(m_folder.isValid());
        write("t.csv", Table);
    }

    void givesFieldsTypesAndMetadata()
    {
        const auto dataset = open("t.csv");
        OGRLayer *layer = dataset->GetLayer(0);
        QCOMPARE(layer->GetName(), "t");
        QStringList fields;
        for (int i = 0; i < layer->GetLayerDefn()->GetFieldCount(); ++i) {
            const OGRFieldDefn *field = layer->GetLayerDefn()->GetFieldDefn(i);
            fields += QString::fromUtf8(field->GetNameRef()) + QLatin1Char(':') +
                      QString::fromUtf8(OGRFieldDefn::GetFieldTypeName(field->GetType()));
        }

        QCOMPARE(fields.join(QLatin1Char('|')),
                 QStringLiteral("Site ID:String|Longitude:String|Latitude:Real|Height "
                                "(m):Real|Phone:String|Note:String"));
        QCOMPARE(layer->GetFeatureCount(), 3);
        QCOMPARE(layer->GetMetadataItem("unit"), "DEGREES");
        QCOMPARE(layer->GetMetadataItem("format"), "generic");
        QCOMPARE(layer->GetMetadataItem("epsg"), "");
        QCOMPARE(layer->GetMetadataItem("missing"), nullptr);
    }

    void keepsRowsThatCannotBePlacedAndNamesThemOnce()
    {
        const Warnings warnings;
        const auto dataset = open("t.csv");
        OGRLayer *layer = dataset->GetLayer(0);
        QList<qint64> ids;
        int placed = 0;
        for (int pass = 0; pass < 2; ++pass) {
            layer->ResetReading();
            while (OGRFeatureUniquePtr feature{layer->GetNextFeature()}) {
                ids += feature->GetFID();
                placed += feature->GetGeometryRef() ? 1 : 0;
            }
        }

        QCOMPARE(ids, (QList<qint64>{2, 4, 5, 2, 4, 5})); // rows of the file, including blank ones
        QCOMPARE(placed, 4);
        QCOMPARE(warnings.texts.size(), 1);
        QVERIFY(warnings.texts.first().contains(QStringLiteral("row 4, column \"Longitude\"")));
        QCOMPARE(layer->GetMetadataItem("COUNT", "problems"), "1");
        QVERIFY(QString::fromUtf8(layer->GetMetadataItem("PROBLEM_1", "problems"))
                    .startsWith(QStringLiteral("4|Longitude|Error|")));
    }

    void keepsTheProblemsOfAWholeWalk_data()
    {
        // rows: -1 for all
        const Cases<QByteArray, bool, int, int, bool> row(
            {"filter", "ignoresFields", "firstRow", "rows", "keeps"});
        row("whole", {}, false, 0, -1, true);
        row("without fields", {}, true, 0, -1, true);
        row("filtered", "Height = 3", false, 0, -1, true);
        row("the first rows", {}, false, 0, 1400, false);
        row("the last rows", {}, false, 1300, -1, false);
    }
    /// After a full read the problems are known even if the file is deleted; otherwise the file is
    /// read for them.
    void keepsTheProblemsOfAWholeWalk()
    {
        QFETCH(QByteArray, filter);
        QFETCH(bool, ignoresFields);
        QFETCH(int, firstRow);
        QFETCH(int, rows);
        QFETCH(bool, keeps);
        const Warnings warnings;
        // The first 1000 rows determine the types, so "n/k" in row 1202 of the file is lost.
        QByteArray text = "EPSG:999999\nSite ID;Lon;Lat;Height\n";
        for (int i = 1; i <= 1500; ++i)
            text += QByteArray::number(i) +
                    (i == 1400 ? ";east;47;" : ";2." + QByteArray::number(i) + ";47;") +
                    (i == 1200   ? "n/k\n"
                     : i == 1300 ? "007\n"
                     : i == 1401 ? "3;more\n"
                                 : "3\n");
        write("w.csv", text);
        const QStringList expected = {
            QStringLiteral("COUNT=6"),
            QStringLiteral("PROBLEM_1=||Warning|the file declares the coordinate system "
                           "EPSG:999999, which is not known"),
            QStringLiteral("PROBLEM_2=1202|Height|Warning|the value \"n/k\" is lost: the column "
                           "holds numbers"),
            QStringLiteral("PROBLEM_3=1302|Height|Warning|the value \"007\" is read as a number: "
                           "digits that a name needs are lost"),
            QStringLiteral("PROBLEM_4=1402|Lon|Warning|the value \"east\" is lost: the column "
                           "holds numbers"),
            QStringLiteral("PROBLEM_5=1402|Lon|Error|the coordinate \"east\" cannot be read: it "
                           "holds no number"),
            QStringLiteral("PROBLEM_6=1403||Warning|the row continues after the last column: "
                           "\"more\" in column 5 has no header")};
        const auto walked = open("w.csv");
        OGRLayer *layer = walked->GetLayer(0);
        const char *ignored[] = {"Site ID", "Lon", "Lat", "Height", nullptr};
        if (ignoresFields)
            layer->SetIgnoredFields(ignored);
        if (!filter.isEmpty())
            layer->SetAttributeFilter(filter.constData());
        if (firstRow > 0)
            QCOMPARE(layer->SetNextByIndex(firstRow), OGRERR_NONE);

        int read = 0;
        while (read != rows && OGRFeatureUniquePtr(layer->GetNextFeature()))
            ++read;

        QVERIFY(rows < 0 || read == rows);
        if (keeps)
            write("w.csv", "Site ID;Lon;Lat;Height\n");
        QCOMPARE(problemsOf(*layer), expected);
    }

    void readsAtRandomWithoutDisturbingTheWalk()
    {
        const Warnings warnings;
        const auto dataset = open("t.csv");
        OGRLayer *layer = dataset->GetLayer(0);
        OGRFeatureUniquePtr first{layer->GetNextFeature()};
        OGRFeatureUniquePtr last{layer->GetFeature(5)};
        OGRFeatureUniquePtr blank{layer->GetFeature(3)};
        OGRFeatureUniquePtr second{layer->GetNextFeature()};

        QCOMPARE(first->GetFieldAsString("Site ID"), "007");
        QCOMPARE(last->GetFieldAsString("Note"), "b\nc");
        QVERIFY(!last->IsFieldSet(3)); // NA
        QVERIFY(!blank);
        QCOMPARE(second->GetFID(), 4);
        QCOMPARE(layer->SetNextByIndex(2), OGRERR_NONE);
        OGRFeatureUniquePtr third{layer->GetNextFeature()};
        QCOMPARE(third->GetFID(), 5);
        QVERIFY(layer->SetNextByIndex(3) != OGRERR_NONE);
    }

    /// The library's SQL expands every name that ends in an asterisk to all columns.
    void namesFieldsWithoutTheMarkOfMandatoryColumns()
    {
        const Warnings warnings;
        write("m.csv", "Site ID*;Longitude *;Latitude*;*;Latitude\nA;2.5;48;1;2\n");
        const auto dataset = open("m.csv");
        QVERIFY(dataset);
        const OGRFeatureDefn *fields = dataset->GetLayer(0)->GetLayerDefn();
        QStringList names;
        for (int i = 0; i < fields->GetFieldCount(); ++i)
            names += QString::fromUtf8(fields->GetFieldDefn(i)->GetNameRef());

        QCOMPARE(names.join(QLatin1Char('|')),
                 QStringLiteral("Site ID|Longitude|Latitude|Column 4|Latitude_2"));
    }

    void filtersAndGivesExtents()
    {
        const Warnings warnings;
        const auto dataset = open("t.csv");
        OGRLayer *layer = dataset->GetLayer(0);
        OGREnvelope extent;

        QCOMPARE(layer->GetExtent(&extent), OGRERR_NONE);
        QCOMPARE(extent.MinX, -3.5);
        QCOMPARE(extent.MaxY, 48.0);
        layer->SetSpatialFilterRect(-3.3, 47, -3, 48);
        QCOMPARE(layer->GetFeatureCount(), 1);
        layer->SetSpatialFilter(nullptr);
        layer->SetAttributeFilter("\"Height (m)\" > 31");
        QCOMPARE(layer->GetFeatureCount(), 1);
        OGRFeatureUniquePtr feature{layer->GetNextFeature()};
        QCOMPARE(feature->GetFieldAsString("Site ID"), "008");
    }

    void countsWhatItReads_data()
    {
        const Cases<QByteArray, int> row({"text", "rows"});
        addRepeatedHeaders(row);
        addSums(row);
        addWorksheets(row);
        const QByteArray header = "Site ID;X;Y;Name\n";
        QByteArray latin1 = header;
        for (int i = 0; i < 9000; ++i)
            latin1 += QByteArray::number(i) + ";2.5;48;\xE9\xE8\xE9\xE8\xE9 Kergu\xE9len\n";
        for (int shift = 0; shift < 3; ++shift) // moves characters across the borders of chunks
            row(("Latin-1, shifted by " + QByteArray::number(shift)).constData(),
                QByteArray(shift, 'T') + "\n" + latin1, 9000);
        QByteArray oneId = "Site ID;Longitude;Latitude;Azimuth\n";
        QByteArray onePlace = "Site;Longitude;Latitude;Azimuth\n";
        for (int i = 0; i < 50000; ++i) {
            const int step = i / 170;
            const QByteArray place =
                QByteArray::number(i % 170 + 1) + ";" + QByteArray::number(step * 0.3);
            oneId += "A;" + place + ";0\nA;" + place + ";120\n";
            onePlace += QByteArray::number(i) + " Street;2.5;48;0\n";
        }
        row("an id at 50,000 places", oneId, 50000);
        row("50,000 names at a place", onePlace, 50000);
        row("a row with nothing but an unnamed column", "Site ID;X;Y;\n1;2;3;a\n2;3;4;b\n;;;c\n",
            2);
        row("30,000 equal names and 3 MB of ampersands",
            "Site;X;" + QByteArray("n;").repeated(30000) + "\na;1;2;" + QByteArray(3000000, '&') +
                "\n",
            1);
    }
    void countsWhatItReads()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, rows);
        const Warnings warnings;
        write("n.csv", text);
        const auto dataset = open("n.csv");
        QVERIFY(dataset);
        OGRLayer *layer = dataset->GetLayer(0);
        int read = 0;
        qint64 last = 0;
        while (OGRFeatureUniquePtr feature{layer->GetNextFeature()}) {
            QVERIFY(feature->GetFID() > last);
            last = feature->GetFID();
            ++read;
        }

        QCOMPARE(layer->GetFeatureCount(), rows);
        QCOMPARE(read, rows);
    }

    void reportsHiddenRows()
    {
        const Warnings warnings;
        const auto row = [](const QByteArray &attributes, const QByteArray &id) {
            QByteArray cells;
            for (const QByteArray &text : {id, QByteArray("2"), QByteArray("48")})
                cells += "<Cell><Data ss:Type=\"Number\">" + text + "</Data></Cell>";
            return "<Row " + attributes + ">" + cells + "</Row>";
        };
        const QByteArray hidden = "ss:Hidden=\"1\"";
        QByteArray header = row("", "Site ID");
        header.replace(">2<", ">X<").replace(">48<", ">Y<").replace("Number", "String");
        write("h.xml", "<?xml version=\"1.0\"?><Workbook "
                       "xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\" "
                       "xmlns:ss=\"urn:schemas-microsoft-com:office:spreadsheet\">"
                       "<Worksheet ss:Name=\"S\"><Table>" +
                           header + row("", "1") + row(hidden, "2") + row("", "3") +
                           row(hidden, "4") + "</Table></Worksheet></Workbook>");
        const auto dataset = open("h.xml");
        QVERIFY(dataset);

        QCOMPARE(dataset->GetLayer(0)->GetFeatureCount(), 4);
        const QStringList problems = problemsOf(*dataset->GetLayer(0));
        QVERIFY2(problems.join(u'\n').contains(
                     QStringLiteral("hidden rows are read like all others: 2 of them, the first of "
                                    "which is row 3")),
                 qPrintable(problems.join(u'\n')));
    }

    void findsTheEncoding_data()
    {
        const Cases<QByteArray, QByteArray, QByteArray, QByteArray> row(
            {"written", "names", "found", "option"});
        row("ASCII", "UTF-8", "Paris;Lyon", "UTF-8");
        row("UTF-8", "UTF-8", "Orléans;Łódź", "UTF-8");
        row("one accent", "CP1252", "Orléans;Paris;Lyon", "WINDOWS-1252?");
        row("a degree sign", "CP1252", "Pic 90°;Paris", "WINDOWS-1252?");
        row("French", "CP1252", "Évreux;Le Blanc-Mesnil;Besançon;Sœur", "WINDOWS-1252?");
        row("German", "CP1252", "Lübeck;Köln Süd;Straße 7;Saarbrücken", "WINDOWS-1252?");
        row("Danish", "CP1252", "København;Århus;Sønderborg;Rødby;Ærø", "WINDOWS-1252?");
        row("Spanish", "CP1252", "Málaga;Logroño;Cádiz;León;Almería", "WINDOWS-1252?");
        row("Russian", "CP1251", "Ясенево Север;Москва;Тверь;Химки", "WINDOWS-1251?");
        row("Ukrainian", "CP1251", "Київ;Львів;Харків;Одеса;Дніпро", "WINDOWS-1251?");
        row("KOI8-R", "KOI8-R", "Ясенево Север;Москва;Тверь;Химки", "KOI8-R?");
        row("Polish", "CP1250", "Łódź Główna;Kraków;Gdańsk;Świnoujście", "WINDOWS-1250?");
        row("one Polish name", "CP1250", "Łódź Główna", "WINDOWS-1250?");
        row("Polish, ISO", "ISO-8859-2", "Łódź Główna;Kraków;Gdańsk;Świnoujście", "ISO-8859-2?");
        row("Czech", "CP1250", "Děčín;Plzeň;Třebíč;Žďár nad Sázavou", "WINDOWS-1250?");
        row("Turkish", "CP1254", "İstanbul;Şişli;Kadıköy;Beşiktaş;Ağrı", "WINDOWS-1254?");
        row("Greek", "CP1253", "Αθήνα;Θεσσαλονίκη;Πάτρα;Ηράκλειο", "WINDOWS-1253?");
        row("Japanese", "SHIFT_JIS", "東京タワー;大阪城;名古屋駅;札幌", "SHIFT_JIS?");
        row("Chinese", "GBK", "北京站;上海虹桥;广州塔;深圳北", "GB18030?");
        row("the user knows it", "CP850", "Orléans;Besançon;Évreux", "CP850", "ENCODING=CP850");
        row("the user says UTF-8", "UTF-8", "Orléans", "UTF-8", "ENCODING=utf8");
    }
    /// A guess, marked "?", is one of the problems.
    void findsTheEncoding()
    {
        QFETCH(QByteArray, written);
        QFETCH(QByteArray, names);
        QFETCH(QByteArray, option);
        QFETCH(QByteArray, found);
        QByteArray text = "Site ID,Longitude,Latitude,Name\n";
        for (const QByteArray &name : names.split(';')) {
            const QByteArray number = QByteArray::number(text.size());
            text += "S" + number + ",2." + number + ",48," + name + "\n";
        }
        char *bytes = CPLRecode(text.constData(), "UTF-8", written.constData());
        write("e.csv", bytes);
        CPLFree(bytes);
        const char *options[] = {option.isEmpty() ? nullptr : option.constData(), nullptr};
        const QByteArray path = "site:" + m_folder.path("e.csv");
        const GDALDatasetUniquePtr dataset(
            GDALDataset::Open(path.constData(), GDAL_OF_VECTOR, nullptr, options));
        QVERIFY(dataset);
        OGRLayer *layer = dataset->GetLayer(0);

        const bool isGuess = found.endsWith('?');
        const QByteArray encoding = isGuess ? found.chopped(1) : found;
        QCOMPARE(layer->GetMetadataItem("encoding"), encoding.constData());
        QByteArrayList read;
        while (OGRFeatureUniquePtr feature{layer->GetNextFeature()})
            read += feature->GetFieldAsString("Name");
        QCOMPARE(read.join(';'), names);
        const QStringList guess = {
            QStringLiteral("COUNT=1"),
            QStringLiteral(
                "PROBLEM_1=||Warning|the file does not declare its encoding: its texts are "
                "read as ") +
                QString::fromUtf8(encoding)};
        QCOMPARE(problemsOf(*layer), isGuess ? guess : QStringList{QStringLiteral("COUNT=0")});
    }

    // A layer has the options with which its table was read; an open option overrides them.
    void readsAsTheConnectionSays()
    {
        const Warnings warnings;
        write("e.csv", "Site ID;X;Y\nB\xFCro;2,5;48\n");
        const QByteArray name =
            "site:encoding=CP1251,delimiter=semicolon," + m_folder.path("e.csv");
        const auto nameOfFirst = [&name](const char *option) {
            const char *const options[] = {option, nullptr};
            const GDALDatasetUniquePtr dataset(
                GDALDataset::Open(name.constData(), GDAL_OF_VECTOR, nullptr, options));
            const OGRFeatureUniquePtr site(dataset ? dataset->GetLayer(0)->GetNextFeature()
                                                   : nullptr);
            return site ? QString::fromUtf8(site->GetFieldAsString(0)) : QString();
        };

        QCOMPARE(nameOfFirst(nullptr), QStringLiteral("B\u044Cro"));
        QCOMPARE(nameOfFirst("ENCODING=CP1252"), QStringLiteral("B\u00FCro"));
        QVERIFY(nameOfFirst("DELIMITER=TAB").isEmpty());
    }

    void seesThatAFileHasChanged()
    {
        write("c.csv", "Site ID,X,Y\n1,2.5,48\n");
        QCOMPARE(open("c.csv")->GetLayer(0)->GetFeatureCount(), 1);
        write("c.csv", "Site ID,X,Y\n1,2.5,48\n2,3,4\n");

        QCOMPARE(open("c.csv")->GetLayer(0)->GetFeatureCount(), 2);
    }

    void refusesWhatIsNotALocalTable_data()
    {
        const Cases<QByteArray> row({"name"});
        for (const char *name :
             {"site:", "site:/vsicurl/http://127.0.0.1/a.csv", "site:http://127.0.0.1/a.csv",
              "site:/vsimem/a.csv", "site:/nonexistent/a.csv", "site:/dev/zero"})
            row(name, name);
    }
    void refusesWhatIsNotALocalTable()
    {
        QFETCH(QByteArray, name);
        const Warnings warnings;

        QVERIFY(!GDALDataset::Open(name.constData(), GDAL_OF_VECTOR));
        QVERIFY(!warnings.texts.isEmpty());
    }

    // Programs that can also write first try to open the file for update.
    void declinesToWriteWithoutAWord()
    {
        const Warnings warnings;
        const QByteArray name = "site:" + m_folder.path("t.csv");

        QVERIFY(!GDALDataset::Open(name.constData(), GDAL_OF_VECTOR | GDAL_OF_UPDATE));
        QCOMPARE(warnings.texts, QStringList());
    }

private:
    static void addRepeatedHeaders(const Cases<QByteArray, int> &row)
    {
        const QByteArray header = "Site ID;X;Y;Name\n";
        const QList<std::pair<const char *, QByteArray>> repetitions = {
            {"the header once more far below", header},
            {"the header in capital letters", header.toUpper()},
            {"the header without its last columns", "Site ID;X;;\n"},
        };
        for (const auto &[name, repetition] : repetitions) {
            QByteArray repeated = header;
            for (int i = 0; i < 3000; ++i)
                repeated += QByteArray::number(i) + ";2.5;48;n\n" +
                            (i % 1000 == 500 ? repetition : QByteArray());
            row(name, repeated, 3000);
        }
    }

    static void addSums(const Cases<QByteArray, int> &row)
    {
        const QByteArray header = "Site ID;X;Y;Name\n";
        const QByteArray data = "a;2.5;48;n\nb;2.5;48;n\n";
        row("a row of sums at the end", header + data + "Total:;;;12\n", 2);
        row("a count, sums and means before a blank row",
            header + data + "Total sites;;;2\nAverage;2.5;48;\n;;;\nc;2.5;48;n\n", 3);
        row("a site whose name is a word for sums", header + data + "Total;2.5;48;n\n", 3);
        row("a site whose name begins so", header + data + "Total Nord;2.5;48;\n", 3);
        row("such a row among others", header + "a;1;2;n\nTotal;2.5;48;\n" + data, 4);
        QByteArray large = header;
        for (int i = 0; i < 5000; ++i)
            large += QByteArray::number(i) + ";2.5;48;name\n";
        row("sums below a large table", large + "Summe;;;5000\n", 5000);
    }

    static void addWorksheets(const Cases<QByteArray, int> &row)
    {
        const QByteArray ml =
            "<?xml version=\"1.0\"?><Workbook "
            "xmlns=\"urn:schemas-microsoft-com:office:spreadsheet\" "
            "xmlns:ss=\"urn:schemas-microsoft-com:office:spreadsheet\"><Title>My Worksheet</Title>"
            "<Worksheet ss:Name=\"Cover\"/><Worksheet ss:Name=\"S\"><Table>";
        const auto site = [](const QByteArray &attributes, const QByteArray &id) {
            const QByteArray cell = "<Cell><Data ss:Type=\"String\">";
            const QByteArray end = "</Data></Cell>";
            return "<Row " + attributes + ">" + cell + id + end + cell + "X" + end + cell + "Y" +
                   end + "</Row>";
        };
        row("a worksheet without a table, numbers out of order",
            ml + site("", "Site ID") + site("ss:Index=\"9\"", "a") + site("ss:Index=\"3\"", "b") +
                "</Table></Worksheet></Workbook>",
            2);
        const QByteArray next = "<Worksheet ss:Name=\"T\"><Table>";
        row("a hidden worksheet before another one",
            ml + site("", "Site ID") + site("", "a") + site("", "b") +
                "</Table><WorksheetOptions><Visible>SheetHidden</Visible></WorksheetOptions>"
                "</Worksheet>" +
                next + site("", "Site ID") + site("", "c") + "</Table></Worksheet></Workbook>",
            1);
    }

    void write(const char *name, const QByteArray &text) { m_folder.write(name, text); }
    GDALDatasetUniquePtr open(const char *options, const char *name) const
    {
        return m_folder.open(QByteArray("site:") + options, name);
    }
    GDALDatasetUniquePtr open(const char *name) const { return open("", name); }

    TableFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_SiteLayer)
#include "tst_SiteLayer.moc"
