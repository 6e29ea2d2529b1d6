#include "contract/SceneLegend.h"
#include "readingaids/LegendDrawing.h"
#include "support/Cases.h"

#include <QImage>

using namespace Qt::StringLiterals;
using namespace vlt::readingaids;
using vlt::contract::legend::Row;

namespace {

LegendRamp rampOf(const QList<double> &values)
{
    LegendRamp ramp;
    for (const double value : values)
        ramp.stops.append({value, QColor(0, qRound(value), 0)});
    return ramp;
}

} // namespace

class tst_Legend : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsRows()
    {
        const std::vector<Row> rows = {{"sector", {255, 0, 16, 128}, {"1", "4"}},
                                       {"novalue", {}, {}},
                                       {"value", {1, 2, 3, 4}, {"", "\u00e9 %1"}}};
        QVERIFY(vlt::contract::legend::rowsOf(vlt::contract::legend::textOf(rows)) == rows);
        const std::vector<Row> torn = {{"value", {}, {"a\tb\nvalue\tffffffff"}}};
        const auto read = vlt::contract::legend::rowsOf(vlt::contract::legend::textOf(torn));
        QCOMPARE(read.size(), 1U);
        QCOMPARE(read[0].texts.size(), 1U);
    }

    void saysWhatColorsMean_data()
    {
        // parts as "title: entry, entry"
        const Cases<QByteArray, QString> row({"text", "legend"});
        row("sectors", "sector\tff0000ff\t1\t4\nsector\t00ff00ff\t2\n",
            ": Sectors 1, 4#ff0000, Sector 2#00ff00");
        row("links", "clear\t009e73ff\t1800\nfresnel\tffa50066\t1\t60\n",
            ": clear: 1,800#009e73, 60 % of Fresnel zone 1#ffa500");
        row("ranges",
            "map\t00000000\troofs\tlevel\tdBm\tranges\nstop\t000001ff\t-100\n"
            "stop\t000002ff\t-92.5\nstop\t000003ff\t-80\nnovalue\tc8c8c8ff\n",
            "Roofs: level (dBm): \u2265 -80.0#000003, -92.5 \u2026 -80.0#000002, "
            "< -92.5#000001, no value#c8c8c8");
        row("a map and images",
            "map\t00000000\t\tlevel\t\tgradient\nstop\t000001ff\t1e3\n"
            "image\t00000000\t1.5\tlow\nimage\t00000000\t12\thigh\n",
            "level: |Images by height: 1.5 m: low, 12 m: high");
        row("unknown rows and damaged colors", "future\tff0000ff\nclear\tff\t1\n\t\nclear", "");
        row("rows without their start", "stop\tff0000ff\tx\nvalue\tff0000ff\n", ": #ff0000");
    }
    void saysWhatColorsMean()
    {
        QFETCH(QByteArray, text);
        QStringList parts;
        for (const LegendPart &part : legendOf(text.toStdString())) {
            QStringList entries;
            for (const LegendEntry &entry : part.entries)
                entries << entry.text + (entry.color.isValid() ? entry.color.name() : QString());
            parts << part.title + u": "_s + entries.join(u", "_s);
        }
        QTEST(parts.join(u'|').replace(QChar(0x2212), u'-'), "legend");
    }

    void hasEvenTicks_data()
    {
        const Cases<QList<double>, QString> row({"stops", "ticks"});
        row("decibels", {-107, -80, -71}, "-100 -90 -80");
        row("fractions", {0, 0.25, 1}, "0.0 0.2 0.4 0.6 0.8 1.0");
        row("one value", {7}, "7");
        row("decades: the values themselves", {0, 1, 10, 100, 1000}, "0 1 10 100 1000");
        row("two colors for a value", {0, 50, 50, 100}, "0 20 40 60 80 100");
    }
    void hasEvenTicks()
    {
        QFETCH(QList<double>, stops);
        const LegendRamp ramp = rampOf(stops);
        const QList<double> ticks = ramp.ticks(6);
        const double step = ramp.isEven() && ticks.size() > 1 ? ticks[1] - ticks[0] : 1;
        QStringList texts;
        double last = -1;
        for (const double tick : ticks) {
            texts << tickText(tick, step).remove(u',').replace(QChar(0x2212), u'-');
            const double share = ramp.shareOf(tick);
            QVERIFY(share > last && share <= 1);
            last = share;
        }
        QTEST(texts.join(u' '), "ticks");
    }

    /// Halfway between two colours lies their mixture, as on the buildings.
    void drawsTheColors()
    {
        Legend legend = legendOf("map\t00000000\t\tlevel\t\tgradient\nstop\t000000ff\t0\n"
                                 "stop\t00c800ff\t100\nnovalue\tc81414ff\n");
        AidStyle style;
        style.font.setPixelSize(20);
        QImage image(legendSize(legend, style).toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawLegend(painter, image.rect(), legend, style);
        painter.end();

        const int x = qRound(style.padding() + style.line());
        QList<QColor> column;
        for (int y = 0; y < image.height(); ++y) {
            const QColor color = image.pixelColor(x, y);
            if (color.red() == 0 && color.blue() == 0)
                column << color;
            if (color == QColor(0xc8, 0x14, 0x14))
                column << color;
        }
        QVERIFY(column.constLast() == QColor(0xc8, 0x14, 0x14));
        column.removeAll(column.constLast());
        QVERIFY(column.size() > 100);
        QVERIFY(column.constFirst().green() > 197);
        QVERIFY(qAbs(column[column.size() / 2].green() - 100) < 3);
        QVERIFY(column.constLast().green() < 3);
    }
};

QTEST_MAIN(tst_Legend)
#include "tst_Legend.moc"
