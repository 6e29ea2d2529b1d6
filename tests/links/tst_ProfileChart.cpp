#include "links/ClearanceText.h"
#include "links/ProfileChart.h"
#include "links/ProfilePath.h"
#include "support/Cases.h"

#include <QGuiApplication>
#include <QImage>

using namespace Qt::StringLiterals;
using namespace vlt;

namespace {

constexpr QSize SizePx(800, 400);
constexpr double LengthM = 10000;

/// 10 km with antennas 150 m above the sea and a hill of a height in the middle.
geodata::LinkProfile profile(double hillM, double frequencyMHz)
{
    geodata::LinkProfile made;
    made.link.endA = u"Alpha"_s;
    made.link.endB = u"Beta"_s;
    made.link.ends = {linkpath::LinkEnd{0, 0, 50.0}, linkpath::LinkEnd{0, LengthM, 50.0}};
    made.path.lengthM = LengthM;
    made.path.hasTerrain = true;
    made.path.groundAM = made.path.groundBM = 100;
    for (int i = 0; i <= 100; ++i)
        made.path.points.push_back({LengthM * i / 100, i == 50 ? hillM : 100});
    if (frequencyMHz > 0) {
        made.link.frequencyMHz = frequencyMHz;
        made.link.clearance = checkProfile(made.path.points, 150, 150, frequencyMHz, made.rule);
        made.worst = made.link.clearance.worst;
    } else {
        made.link.clearance.lack = linkpath::Lack::Frequency;
    }
    return made;
}

qint64 countOf(const QImage &picture, const QColor &color)
{
    qint64 count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y) == color;
    }
    return count;
}

} // namespace

class tst_ProfileChart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // In the middle the zone has a radius of 11.18 m at 6 GHz and the bulge is 1.47 m.
    void statesTheFigures_data()
    {
        const Cases<double, double, QString> row({"hill", "frequency", "figures"});
        row("clear", 120, 6000,
            u"10 km  \u2022  6 GHz  \u2022  clear  \u2022  5 km from A, 28.5 m free (255 %)"_s);
        row("obstructed", 160, 6000,
            u"10 km  \u2022  6 GHz  \u2022  obstructed  \u2022  5 km from A, terrain 11.5 m above the line"_s);
        row("unknown", 120, 0, u"10 km  \u2022  unknown (no frequency)"_s);
    }

    void statesTheFigures()
    {
        QFETCH(double, hill);
        QFETCH(double, frequency);
        QTEST(links::profileFigures(profile(hill, frequency)), "figures");
    }

    // The hill rises from 4.9 to 5 km; the bulge is 1.47 m in the middle and 0.94 m at 2 km.
    void statesThePlacesOfThePath_data()
    {
        const Cases<geodata::LinkProfile, double, QString> row({"profile", "distanceM", "text"});
        row("hill", profile(120, 6000), 5000,
            u"5.00 km from A\nground at 120 m\nline of sight at 150 m\n28.5 m free (255 % of the Fresnel zone)"_s);
        row("slope", profile(120, 6000), 4950,
            u"4.95 km from A\nground at 110 m\nline of sight at 150 m\n38.5 m free (345 % of the Fresnel zone)"_s);
        row("cut", profile(160, 6000), 5000,
            u"5.00 km from A\nground at 160 m\nline of sight at 150 m\nterrain 11.5 m above the line"_s);
        row("no frequency", profile(120, 0), 2000,
            u"2.00 km from A\nground at 100 m\nline of sight at 150 m\n49.1 m free"_s);
        geodata::LinkProfile partly = profile(120, 6000);
        partly.path.points.erase(partly.path.points.begin() + 20, partly.path.points.begin() + 40);
        row("gap of the terrain", partly, 3000,
            u"3.00 km from A\nno terrain\nline of sight at 150 m"_s);
        partly.link.ends[1].heightM.reset();
        row("no height", partly, 5000, u"5.00 km from A\nground at 120 m"_s);
    }

    void statesThePlacesOfThePath()
    {
        QFETCH(geodata::LinkProfile, profile);
        QFETCH(double, distanceM);
        QTEST(links::ProfilePath(profile).textAt(distanceM), "text");
    }

    void drawsTheZoneInTheColorOfItsClass()
    {
        for (const double hillM : {120.0, 145.0, 160.0}) {
            const geodata::LinkProfile shown = profile(hillM, 6000);
            QImage picture(SizePx, QImage::Format_RGB32);
            QPainter painter(&picture);
            links::ProfileStyle style;
            style.font.setPixelSize(12);
            links::drawProfile(painter, QRectF(QPointF(), SizePx), shown, style);
            painter.end();
            for (const auto status :
                 {linkpath::ClearanceStatus::Clear, linkpath::ClearanceStatus::Marginal,
                  linkpath::ClearanceStatus::Obstructed}) {
                const bool isOwn = status == shown.link.clearance.status;
                QCOMPARE(countOf(picture, links::colorOfClearance(status)) > 20, isOwn);
            }
        }
    }
};

QTEST_MAIN(tst_ProfileChart)
#include "tst_ProfileChart.moc"
