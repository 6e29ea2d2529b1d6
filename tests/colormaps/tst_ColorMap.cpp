#include "ColorMapTesting.h"

#include "colormaps/ColorLookup.h"
#include "colormaps/ColorMapText.h"
#include "support/Cases.h"

#include <QTest>

#include <cmath>
#include <filesystem>
#include <utility>

using namespace Qt::StringLiterals;
using namespace vlt::colormaps;

namespace {

constexpr double Unset = ColorMap::Unset;
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

QByteArray paletteHeader(quint32 first, quint32 count, bool bigEndian = false)
{
    QByteArray bytes;
    for (const quint32 number : {first, count}) {
        for (int i = 0; i < 4; ++i)
            bytes += static_cast<char>(number >> 8 * (bigEndian ? 3 - i : i) & 0xFF);
    }
    return bytes;
}

} // namespace

class tst_ColorMap : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

private Q_SLOTS:
    void writesTexts()
    {
        const std::string path = m_dir.filePath(u"own.txt"_s).toStdString();
        const QByteArray lines = "nv grey 7\n-3 red\n0 1 2 3 4\n0 blue\n1.5e10 white\n";
        writeFile(m_dir.filePath(u"own.txt"_s), lines);
        ColorMap map;
        for (const auto &[low, high] : {std::pair(Unset, Unset), {-1e-7, 1. / 3}, {5., 5.}}) {
            QVERIFY(map.load(path, low, high));
            const auto read = parseColorMapText(colorMapText(map), Unset, Unset);
            QVERIFY(read);
            QVERIFY(read->noDataColor == map.noDataColor());
            QCOMPARE(read->associations.size(), 4U);
            for (std::size_t i = 0; i < 4; ++i) {
                QCOMPARE(read->associations[i].value, map.associations()[i].value);
                QVERIFY(read->associations[i].color == map.associations()[i].color);
            }
        }
    }

    void readsTexts_data()
    {
        const Cases<QByteArray, QString, QString> row({"text", "expected", "noData"});
        row("all separators, empty tokens", "1,2,3,4\n 2:\t5 : 6,,7 8", "1 2,3,4,255; 2 5,6,7,8");
        row("line ends", "1 red\r\n2 red\r3 red\n\n",
            "1 255,0,0,255; 2 255,0,0,255; 3 255,0,0,255");
        row("byte order mark", "\xEF\xBB\xBF# head\n1 red", "1 255,0,0,255");
        row("comments, lines of one word", "# 1 red\n#1 red\n/1 red\n  // 1 red\nred\n7\n1 red #x",
            "1 255,0,0,0");
        row("any case", "1 RED\n2 Red\n3 red\nNV Blue",
            "1 255,0,0,255; 2 255,0,0,255; 3 255,0,0,255", "0,0,255,255");
        row("names 1", "1 white\n2 black\n3 red\n4 green\n5 blue",
            "1 255,255,255,255; 2 0,0,0,255; 3 255,0,0,255; 4 0,255,0,255; 5 0,0,255,255");
        row("names 2", "1 yellow\n2 magenta\n3 cyan\n4 aqua\n5 grey\n6 gray",
            "1 255,255,0,255; 2 255,0,255,255; 3 0,255,255,255; 4 0,191,191,255; "
            "5 191,191,191,255; 6 191,191,191,255");
        row("names 3", "1 orange\n2 brown\n3 purple\n4 violet\n5 indigo",
            "1 255,127,0,255; 2 191,127,63,255; 3 127,0,255,255; 4 127,0,255,255; "
            "5 0,127,255,255");
        row("name with alpha", "1 red 128", "1 255,0,0,128");
        row("four words are numbers", "1 red 2 3", "1 0,2,3,255");
        row("more words than have a meaning", "1 2 3 4 5 6 7 red", "1 2,3,4,5");
        row("colours that are no bytes", "1 256 -1 99999999999999999999 1e3", "1 255,0,255,1");
        row("colours read as far as they go", "1 12px +7 3.9 x", "1 12,7,3,0");
        row("values read as far as they go", "1.5m red\nx blue\n+2e1. green\n-.5 black",
            "-0.5 0,0,0,255; 0 0,0,255,255; 1.5 255,0,0,255; 20 0,255,0,255");
        row("words that mean no number here",
            "nan red\ninf blue\n-inf green\n1.#QNAN red\n0x1F blue",
            "0 255,0,0,255; 0 0,0,255,255; 0 0,255,0,255; 0 0,0,255,255; 1 255,0,0,255");
        row("sorted, equal ones as in the file", "5 red\n-1 green\n5 blue\n3 black",
            "-1 0,255,0,255; 3 0,0,0,255; 5 255,0,0,255; 5 0,0,255,255");
        row("no data, see-through", "nv 0 0 0 0\n1 red", "1 255,0,0,255", "0,0,0,0");
        row("no data by name, the last one holds", "nv red\n1 red\nnv blue 9", "1 255,0,0,255",
            "0,0,255,9");
        row("percentages without a range", "50% red\n120% pink\n7 red", "7 255,0,0,255");
        row("a lone per cent sign is a bad number", "% red", "0 255,0,0,255");
    }

    void readsTexts()
    {
        QFETCH(QByteArray, text);
        ReportedErrors errors;
        ColorMap map;

        QVERIFY(map.load(fileWith(m_dir, u"a.txt"_s, text)));

        QTEST(written(map), "expected");
        QTEST(map.noDataColor() ? written(*map.noDataColor()) : QString(), "noData");
        QCOMPARE(errors.texts(), QStringList());
        QVERIFY(map.hasRange());
        QCOMPARE(map.minimum(), map.associations().front().value);
        QCOMPARE(map.maximum(), map.associations().back().value);
    }

    void stretches_data()
    {
        const Cases<QByteArray, double, double, QString> row(
            {"text", "minimum", "maximum", "expected"});
        const char *const plain = "0 white\n100 0 0 255\n50 red";
        row("percentage scaled twice", "0 white\n100 0 0 255\n50% red 128", 0, 10, "0 0.5 10");
        row("absolute values", plain, -120, -60, "-120 -90 -60");
        row("percentages only", "0% red\n25% red\n100% red", 10, 30, "10 15 30");
        row("percentages that leave room", "20% red\n60% red", 0, 100, "0 100");
        row("ends of the percentages", "0% red\n100% red", 1, 2, "1 2");
        row("one value", "5 red", 3, 4, "3");
        row("one value twice", "5 red\n5 blue", 3, 4, "3 3");
        row("turned round", plain, 10, 0, "0 5 10");
        row("no width", plain, 7, 7, "7 7 7");
        row("only a minimum", plain, 7, Unset, "0 50 100");
        row("only a maximum", plain, Unset, 7, "0 50 100");
        row("no number", plain, NaN, 7, "0 50 100");
        row("infinite", plain, 0, Infinity, "0 50 100");
        row("file as wide as numbers go", "-1.5e308 red\n0 red\n1.5e308 red", 0, 8, "0 4 8");
        row("beyond numbers", "-1e999 red\n1e999 red", 0, 8, "0 8");
        row("range as wide as numbers go", plain, -1.5e308, 1.5e308, "-1.5e+308 0 1.5e+308");
        row("percentage of such a range", "0% red\n50% red\n100% red", -1.5e308, 1.5e308,
            "-1.5e+308 0 1.5e+308");
        row("percentage of a range nearly so wide", "0% red\n20% red\n100% red", 0, 1.5e308,
            "0 3e+307 1.5e+308");
    }

    void stretches()
    {
        QFETCH(QByteArray, text);
        QFETCH(double, minimum);
        QFETCH(double, maximum);
        ColorMap map;

        QVERIFY(map.load(fileWith(m_dir, u"a.cmap"_s, text), minimum, maximum));

        QStringList values;
        for (const ColorAssociation &one : map.associations())
            values << QString::number(one.value);
        QTEST(values.join(u' '), "expected");
    }

    void keepsColorsWithTheirStretchedValues()
    {
        ColorMap map;
        QVERIFY(map.load(fileWith(m_dir, u"a.txt"_s, "0 white\n100 0 0 255\n50% red 128"), 0, 10));
        QCOMPARE(written(map), u"0 255,255,255,255; 0.5 255,0,0,128; 10 0,0,255,255"_s);
        QVERIFY(map.load(fileWith(m_dir, u"a.txt"_s, "0 white\n5 red\n5 blue\n10 black"), 10, 0));
        QCOMPARE(written(map), u"0 0,0,0,255; 5 255,0,0,255; 5 0,0,255,255; 10 255,255,255,255"_s);
    }

    void refusesAndTellsWhy_data()
    {
        // message: "%1" means the path
        const Cases<QByteArray, QString, QString> row({"text", "message", "otherName"});
        row("above 100 %", "1 red\n120% red", "Wrong value for a percentage : 120%");
        row("below 0 %", "-1% red", "Wrong value for a percentage : -1%");
        row("unknown colour", "nv red\n5 pink\n6 mauve", "Unknown color : pink");
        row("too few numbers", "5 10 20", "Unknown color : 10");
        row("unknown colour of no data", "1 red\nnv none", "Unknown color : none");
        row("a token of a damaged file", "1 " + QByteArray(100'000, 'z'),
            u"Unknown color : "_s + QString(256, u'z'));
        row("empty", {}, "No color association found in %1", "a.cmap");
        row("no data only", "nv red\n# x y", "No color association found in %1");
        row("huge", QByteArray((16 << 20) + 1, '\n'), "the file %1 is too large for a color map");
        for (const char *name : {"myINDEX.txt", "a.clr", "a.txt.bak", "txt"})
            row(name, "1 red", {}, name);
    }

    void refusesAndTellsWhy()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, message);
        QFETCH(QString, otherName);
        ColorMap map;
        QVERIFY(map.load(fileWith(m_dir, u"good.TXT"_s, "nv red\n1 red")));
        const std::string path =
            fileWith(m_dir, otherName.isEmpty() ? u"a.txt"_s : otherName, text);
        ReportedErrors errors;

        const bool isLoaded = map.load(path, 0, 10);

        QVERIFY(!isLoaded);
        QVERIFY(map.associations().empty() && !map.noDataColor());
        const QString reported =
            message.contains(u"%1"_s) ? message.arg(QString::fromStdString(path)) : message;
        QCOMPARE(errors.texts(), reported.isEmpty() ? QStringList() : QStringList{reported});
        QVERIFY(!colorOf(map, 1, Interpretation::Interpolation));
    }

    void opensRegularFilesOnly()
    {
        const std::filesystem::path dir(QFile::encodeName(m_dir.path()).toStdString());
        std::filesystem::create_directory(dir / "folder.txt");
        std::filesystem::create_symlink("/dev/zero", dir / "endless.txt");
        for (const char *name : {"missing.txt", "folder.txt", "endless.txt", "missing.tc"}) {
            const std::string path = dir / name;
            ReportedErrors errors;
            ColorMap map;
            QVERIFY(!map.load(path));
            QCOMPARE(errors.texts().join(u'|'),
                     path.ends_with("tc") ? QString()
                                          : u"Cannot find "_s + QString::fromStdString(path));
        }
    }

    void readsPalettes_data()
    {
        const Cases<QByteArray, QString> row({"bytes", "expected"});
        const QByteArray planes("\x01\x02\x0A\x0B\x64\xFF", 6);
        const QString two = u"7 1,10,100,255; 8 2,11,255,255"_s;
        row("little-endian", paletteHeader(7, 2) + planes, two);
        row("big-endian", paletteHeader(7, 2, true) + planes, two);
        row("a byte too many", paletteHeader(7, 2) + planes + "x", two);
        row("a fourth plane", paletteHeader(7, 2) + planes + "xy", {});
        row("a byte too few", paletteHeader(7, 2) + planes.chopped(1), {});
        row("first index too high", paletteHeader(256, 2) + planes, {});
        row("last index beyond 255", paletteHeader(255, 2) + planes,
            "255 1,10,100,255; 256 2,11,255,255");
        row("no colour", paletteHeader(7, 0) + planes, {});
        row("too many colours", paletteHeader(0, 257) + QByteArray(771, 'x'), {});
        row("header cut", paletteHeader(7, 2).chopped(1), {});
        row("empty", {}, {});
    }

    void readsPalettes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        ReportedErrors errors;
        ColorMap map;

        QCOMPARE(map.load(fileWith(m_dir, u"a.Tc"_s, bytes)), !expected.isEmpty());

        QCOMPARE(written(map), expected);
        QCOMPARE(errors.texts(), QStringList());
    }

    void readsAndStretchesAPaletteOfFullSize()
    {
        ColorMap map;
        QVERIFY(map.load(fileWith(m_dir, u"a.tc"_s, paletteHeader(0, 256) + QByteArray(768, 'A')),
                         0, 51));
        QCOMPARE(map.associations().size(), 256U);
        QCOMPARE(map.associations()[5].value, 1.0); // 5 * 51 / 255
    }

    void findsColors_data()
    {
        const Cases<double, QString, QString> row({"value", "range", "mixture"});
        const QString first = u"0,0,0,0"_s;
        const QString last = u"9,9,9,9"_s;
        row("below", -Infinity, first, first);
        row("first", 0, first, first);
        row("quarter", 2.5, first, "25,50,63,64"); // 62.5 and 63.75 rounded
        row("up to the edge", 10. - 1e-9, first, "100,200,250,255");
        row("at the edge", 10, "4,4,4,255", "100,200,250,255");
        row("behind it", 15, "4,4,4,255", "7,7,7,132"); // 6.5 rounded
        row("last", 20, last, last);
        row("above", Infinity, last, last);
        row("no value", NaN, "1,2,3,4", "1,2,3,4");
    }

    void findsColors()
    {
        QFETCH(double, value);
        ColorMap map;
        QVERIFY(map.load(fileWith(m_dir, u"a.txt"_s,
                                  "0 0 0 0 0\n10 100 200 250 255\n10 4 4 4 255\n20 9 9 9 9\n"
                                  "nv 1 2 3 4")));

        QTEST(written(*colorOf(map, value, Interpretation::ColorRanges)), "range");
        QTEST(written(*colorOf(map, value, Interpretation::Interpolation)), "mixture");
    }

    void hasNoColorForNoValueWithoutOne()
    {
        ColorMap map;
        QVERIFY(map.load(fileWith(m_dir, u"a.txt"_s, "0 red\n10 blue")));
        QVERIFY(!colorOf(map, NaN, Interpretation::Interpolation));
    }
};

QTEST_GUILESS_MAIN(tst_ColorMap)
#include "tst_ColorMap.moc"
