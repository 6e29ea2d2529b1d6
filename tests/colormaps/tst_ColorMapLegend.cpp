#include "colormaps/ColorMapList.h"
#include "colormaps/ColoredInfoText.h"
#include "colormaps/Legend.h"
#include "colormaps/LegendRows.h"
#include "colormaps/OpenColorMap.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>

#include <set>

using namespace Qt::StringLiterals;
using namespace vlt::colormaps;

class tst_ColorMapLegend : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString fileWith(const QString &name, const QByteArray &text = "0 red\n")
    {
        return writeFile(m_dir.filePath(name), text);
    }

    ColorMap mapOf(const QByteArray &text)
    {
        return openColorMap(fileWith(u"map.txt"_s, text)).value();
    }

private Q_SLOTS:
    void init() { QTest::failOnWarning(QRegularExpression(u".?"_s)); }

    void listsTheMapsOfSubFolders()
    {
        const QString root = u"install/addons/telecom/colormaps/"_s;
        const QString two = fileWith(root + u"b/two.v1.cmap"_s);
        const QString one = fileWith(root + u"b/One.TXT"_s);
        const QString three = fileWith(root + u"a/three.txt"_s);
        fileWith(root + u"a/three.tc"_s);
        fileWith(root + u"a/deeper/four.txt"_s);
        fileWith(root + u"five.txt"_s);

        const QList<ColorMapEntry> maps = listColorMaps(m_dir.filePath(u"install"_s), true);

        QStringList found;
        for (const ColorMapEntry &map : maps)
            found << map.name + u'=' + map.path;
        QCOMPARE(found, QStringList({u"None="_s, u"three="_s + three, u"One="_s + one,
                                     u"two.v1="_s + two}));
        QCOMPARE(listColorMaps(m_dir.filePath(u"install"_s), false).size(), 3);
        QVERIFY(listColorMaps(m_dir.filePath(u"nowhere"_s), false).isEmpty());
    }

    void saysWhyAMapDoesNotOpen()
    {
        const QString bad = fileWith(u"bad.txt"_s, "5 pink");
        const vlt::Result<ColorMap> pink = openColorMap(bad);
        QVERIFY(!pink);
        QCOMPARE(pink.error().key, u"MESS_ERR_OPEN_CMAP"_s);
        QCOMPARE(pink.error().path, bad);
        QCOMPARE(pink.error().detail, u"Unknown color : pink"_s);
        QVERIFY(openColorMap(fileWith(u"index.txt"_s)).error().detail.isEmpty());
    }

    void writesNumbersThatTellValuesApart_data()
    {
        const Cases<double, double, QString> row({"value", "gap", "text"});
        row("whole", -120, 10, "-120");
        row("stretched", -87.352941, 10, "-87.4");
        row("near enough to whole", 30.04, 5, "30");
        row("fine", 0.02, 0.01, "0.02");
        row("large and fine", 1234567.25, 0.5, "1,234,567.25");
        row("no negative zero", -0.001, 1, "0");
        row("too fine", 1.23456789, 1e-9, "1.23457");
        row("too large", 2.5e12, 1e12, "2.5E+12");
        row("alone", 12345.678, 0, "12,345.7");
    }

    void writesNumbersThatTellValuesApart()
    {
        QFETCH(double, value);
        QFETCH(double, gap);
        QTEST(numberForGap(value, gap), "text");
    }

    void labelsValuesAndRanges_data()
    {
        const Cases<QByteArray, QString, QString> row({"map", "gradient", "ranges"});
        row("uneven", "0 red\n1 red\n1000 red", "0 1 1,000", "< 1|1 \u2026 1,000|\u2265 1,000");
        row("equal values count once", "0 red\n5 red\n5 blue", "0 5", "< 5|\u2265 5");
        row("one", "7 red", "7", "7");
    }

    void labelsValuesAndRanges()
    {
        QFETCH(QByteArray, map);
        const ColorMap colors = mapOf(map);
        const auto labels = [&colors](Interpretation interpretation, QChar between) {
            const LegendScale scale(colors, interpretation);
            QStringList texts;
            for (int i = 0; i < scale.count(); ++i)
                texts << scale.label(i);
            return texts.join(between);
        };

        QTEST(labels(Interpretation::Interpolation, u' '), "gradient");
        QTEST(labels(Interpretation::ColorRanges, u'|'), "ranges");
    }

    void drawsRangesWithoutMixtures()
    {
        const ColorMap map = mapOf("0 red\n1 blue\n100 green\n");
        const QImage image = drawLegend(map, Interpretation::ColorRanges);

        std::set<QRgb> inBar;
        QList<QRgb> fromAbove;
        const int x = 20; // inside the bar
        for (int y = 0; y < image.height(); ++y) {
            const QRgb color = image.pixel(x, y);
            if (QColor(color).saturation() > 0 &&
                (fromAbove.isEmpty() || fromAbove.last() != color))
                fromAbove << color;
        }
        QCOMPARE(fromAbove, QList<QRgb>({0xFF00FF00, 0xFF0000FF, 0xFFFF0000}));
    }

    void drawsEveryPartOfAGradientInTheSameRoom()
    {
        const QImage image = drawLegend(mapOf("0 black\n1 128 128 128\n1000000 white"),
                                        Interpretation::Interpolation);

        QList<int> bar; // grey values from top to bottom, between the frames
        for (int y = 0; y < image.height(); ++y) {
            const QColor color = image.pixelColor(20, y);
            if (image.pixelColor(30, y) == color && color != QColor(Qt::white))
                bar << color.red();
        }
        bar.removeFirst(); // frames
        bar.removeLast();
        QVERIFY(bar.size() >= 100);
        QVERIFY(std::is_sorted(bar.rbegin(), bar.rend()));
        QVERIFY(std::abs(bar.at(bar.size() / 2) - 128) <= 2);
        QVERIFY(std::abs(bar.at(bar.size() / 4) - 191) <= 4);
    }

    void hasLabelsAndAScale()
    {
        const ColorMap map = mapOf("-120 red\n-50 blue\nnv black");
        const QImage image = drawLegend(map, Interpretation::Interpolation);
        const QImage large = drawLegend(map, Interpretation::Interpolation, 2);

        bool hasInk = false;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 50; x < image.width(); ++x)
                hasInk = hasInk || qGray(image.pixel(x, y)) < 100;
        }
        QVERIFY(hasInk);
        QVERIFY(std::abs(large.height() - 2 * image.height()) <= 4);
        const QImage withoutNoData =
            drawLegend(mapOf("-120 red\n-50 blue"), Interpretation::Interpolation);
        QVERIFY(withoutNoData.height() < image.height());
    }

    void staysSmallHoweverManyColorsThereAre()
    {
        QByteArray text;
        for (int i = 0; i < 5000; ++i)
            text += QByteArray::number(i) + " 0 0 0\n";
        for (const auto interpretation :
             {Interpretation::ColorRanges, Interpretation::Interpolation}) {
            const QImage image = drawLegend(mapOf(text), interpretation);
            QVERIFY(image.height() > 300 && image.height() < 450);
        }
        QVERIFY(drawLegend(ColorMap(), Interpretation::Interpolation).isNull());
    }

    void writesTheLegendBesideTheLayer()
    {
        const QImage legend = drawLegend(mapOf("0 red\n1 blue"), Interpretation::Interpolation);
        const auto write = [&](const QImage &image, const QString &directory) {
            return writeLegend(image, directory, u"signal 100% #1"_s,
                               vlt::platform::Access::UserOnly);
        };

        const vlt::Result<QString> path = write(legend, m_dir.path());

        QCOMPARE(path.value(), m_dir.filePath(u"signal 100% #1_gradient.png"_s));
        QCOMPARE(QImage(path.value()).convertToFormat(legend.format()), legend);
        QVERIFY(!write(QImage(), m_dir.path()));
        QCOMPARE(write(legend, u"/nowhere"_s).error().path,
                 u"/nowhere/signal 100% #1_gradient.png"_s);
    }

    void namesTheMapOverItsLegend()
    {
        QCOMPARE(coloredInfoText(u"<b> %2"_s, u"/tmp/a&\"b\"_gradient.png"_s),
                 u"<p>Colored: <span style=\"font-weight:600; text-decoration:underline;\">"
                 "&lt;b&gt; %2</span><br/>"
                 "<img src=\"/tmp/a&amp;&quot;b&quot;_gradient.png\"/></p>"_s);
        QVERIFY(coloredInfoText(u"a"_s, u"b"_s, {120, 300})
                    .contains(u"<img src=\"b\" width=\"120\" height=\"300\"/>"_s));
    }
};

QTEST_MAIN(tst_ColorMapLegend)
#include "tst_ColorMapLegend.moc"
