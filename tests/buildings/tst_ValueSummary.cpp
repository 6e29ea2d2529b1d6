#include "buildings/ValueSummary.h"
#include "support/Cases.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt;
using namespace vlt::buildings;
using colormaps::Interpretation;

class tst_ValueSummary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void countsTheClassesOfTheLegend_data()
    {
        const Cases<QByteArray, int, QByteArray, QString, QString> row(
            {"map", "interpretation", "values", "classes", "line"});
        const int ranges = int(Interpretation::ColorRanges);
        const int gradient = int(Interpretation::Interpolation);
        const QByteArray levels = "-110 0 0 0\n-100 10 0 0\n-85 20 0 0\n-70 30 0 0\n";
        const QByteArray values = "-120 -110 -100.5 -100 -90 -85 -84 -80 -70 -60";
        row("ranges: a limit belongs to the class above it", levels, ranges, values,
            u"< -100: 3 (0) | -100 … -85: 2 (10) | -85 … -70: 3 (20) | ≥ -70: 2 (30)"_s,
            u"buildings with a value: 10, from -120 to -60 dBm, median -88 dBm, "
            "70 % at -100 dBm or more, 50 % at -85 dBm or more, 20 % at -70 dBm or more"_s);
        row("gradient: classes end at the last value", levels, gradient, values,
            u"< -100: 3 (5) | -100 … -85: 2 (15) | ≥ -85: 5 (25)"_s,
            u"buildings with a value: 10, from -120 to -60 dBm, median -88 dBm, "
            "70 % at -100 dBm or more, 50 % at -85 dBm or more"_s);
        row("gradient with two ends only", "0 0 0 0\n4 80 0 0\n", gradient, "0.5 3.9 9",
            u"< 0.5: 0 (5) | 0.5 … 1: 1 (15) | 1 … 1.5: 0 (25) | 1.5 … 2: 0 (35) | "
            "2 … 2.5: 0 (45) | 2.5 … 3: 0 (55) | 3 … 3.5: 0 (65) | ≥ 3.5: 2 (75)"_s,
            u"buildings with a value: 3, from 0.5 to 9 dBm, median 3.9 dBm, 67 % at 3.5 dBm or more"_s);
        row("one value in the map", "5 7 0 0\n", ranges, "5", u": 1 (7)"_s,
            u"buildings with a value: 1, from 5 to 5 dBm, median 5 dBm"_s);
        row("no values", levels, ranges, "",
            u"< -100: 0 (0) | -100 … -85: 0 (10) | -85 … -70: 0 (20) | ≥ -70: 0 (30)"_s,
            u"no building has a value"_s);
    }

    void countsTheClassesOfTheLegend()
    {
        QFETCH(QByteArray, map);
        QFETCH(int, interpretation);
        QFETCH(QByteArray, values);
        LegendInput legend{u"map"_s, {}, Interpretation(interpretation)};
        QVERIFY(legend.map.load(mapFile(map)));
        std::vector<double> numbers;
        for (const QByteArray &value : values.split(' ')) {
            if (!value.isEmpty())
                numbers.push_back(value.toDouble());
        }

        const ValueSummary summary = summarize(numbers, legend, u"dBm"_s);

        QStringList classes;
        for (qsizetype i = 0; i < summary.classes.size(); ++i) {
            const ValueClass &one = summary.classes.at(i);
            classes << u"%1: %2 (%3)"_s.arg(classText(summary, i))
                           .arg(one.buildings)
                           .arg(one.color.red);
        }
        QTEST(classes.join(u" | "_s), "classes");
        QTEST(summaryText(summary), "line");
    }

    void combinesManyClasses()
    {
        QByteArray many;
        for (int i = 0; i < 256; ++i)
            many += QByteArray::number(i) + " 1 1 1\n";
        LegendInput legend{u"map"_s, {}, Interpretation::ColorRanges};
        QVERIFY(legend.map.load(mapFile(many)));
        std::vector<double> values(1000);
        std::generate(values.begin(), values.end(), [i = 0]() mutable { return i++ * 0.2; });

        const ValueSummary summary = summarize(values, legend, {});

        QCOMPARE(summary.classes.size(), 12);
        QCOMPARE(summary.shareFrom(0), 1.);
        QCOMPARE(dividingText(summary), u"49 % at 102 or more"_s); // of 0 to 199.8
        // as numpy.quantile() has it
        QCOMPARE(*summary.quantiles[1], 19.98);
        QCOMPARE(*summary.quantiles[3], 99.9);
    }

    void findsUnits_data()
    {
        const Cases<QString, QString, QString, bool, QString> row(
            {"band", "raster", "map", "isStretched", "unit"});
        row("of the band", u"dBW"_s, u"/a/level_dBm.tif"_s, u"spectrum.txt"_s, true, u"dBW"_s);
        row("in the raster's name", {}, u"/a/level_dBm 2026.tif"_s, u"spectrum.txt"_s, true,
            u"dBm"_s);
        row("a height of prediction is none, the unit before it is", {}, u"/a/exposure_Vm_6m.tif"_s,
            {}, true, u"V/m"_s);
        row("metres in the raster's name are none, in the map's they are", {},
            u"/a/level_6_m.tif"_s, u"/m/building_height_m_colorblind.txt"_s, false, u"m"_s);
        row("no unit", {}, u"/a/m.tif"_s, u"/m/spectrum.txt"_s, false, {});
        row("in the map's name", {}, u"/a/b.tif"_s, u"/m/field_dBuVm_colorblind.txt"_s, false,
            u"dBµV/m"_s);
        row("not of a stretched map", {}, u"/a/b.tif"_s, u"/m/level_dBm.txt"_s, true, {});
    }

    void findsUnits()
    {
        QFETCH(QString, band);
        RasterColoring coloring;
        QFETCH(QString, raster);
        QFETCH(QString, map);
        QFETCH(bool, isStretched);
        coloring.rasterFile = raster;
        coloring.colorMap = map;
        coloring.stretched = isStretched;

        QTEST(unitOf(band, coloring), "unit");
    }

private:
    std::string mapFile(const QByteArray &text)
    {
        writeFile(m_dir.filePath(u"map.txt"_s), text);
        return m_dir.filePath(u"map.txt"_s).toStdString();
    }

    QTemporaryDir m_dir;
};

QTEST_GUILESS_MAIN(tst_ValueSummary)
#include "tst_ValueSummary.moc"
