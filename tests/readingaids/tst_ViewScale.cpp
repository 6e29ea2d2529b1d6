#include "readingaids/ViewScale.h"
#include "support/Cases.h"

using namespace Qt::StringLiterals;
using namespace vlt::readingaids;

class tst_ViewScale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheLengthOfTheBar_data()
    {
        const Cases<double, double, double, QString> row(
            {"metresPerPx", "maxPx", "lengthM", "text"});
        row("exactly 100 m", 1, 100, 100, "100 m");
        row("just below", 1, 99.9, 50, "50 m");
        row("two", 0.1, 45, 2, "2 m");
        row("decimals of the language", 0.01, 60, 0.5, "0.5 m");
        row("kilometres", 10, 240, 2000, "2 km");
        row("a country", 5000, 130, 500000, "500 km");
        row("inside a point", 1e-6, 100, 0, "");
        row("no size yet", 1, 0, 0, "");
        row("no view", std::numeric_limits<double>::quiet_NaN(), 100, 0, "");
        row("a minimised view", std::numeric_limits<double>::infinity(), 100, 0, "");
    }
    void findsTheLengthOfTheBar()
    {
        QFETCH(double, metresPerPx);
        QFETCH(double, maxPx);
        const ScaleLength length = scaleLength(metresPerPx, maxPx);
        QTEST(length.lengthM, "lengthM");
        QTEST(length.text, "text");
        if (length.lengthM > 0)
            QCOMPARE(length.lengthPx * metresPerPx, length.lengthM);
    }

    void measuresAtTheTarget()
    {
        // a field of 90 degrees is twice as high as its distance
        const ViewCamera camera{{0, -300, 400}, {0, 0, 0}, {0, 0, 1}, 90};
        QVERIFY(std::abs(metresPerPixel(camera, 1000) - 1) < 1e-12);
    }

    void findsTheBearing_data()
    {
        const Cases<QList<double>, QList<double>, double, double> row(
            {"eye", "up", "northDeg", "bearing"});
        row("to the north", {0, -1, 1}, {0, 0, 1}, 0, 0);
        row("to the east", {-1, 0, 1}, {0, 0, 1}, 0, 90);
        row("to the south-west", {1, 1, 0}, {0, 0, 1}, 0, -135);
        row("true north is right of the axis", {0, -1, 1}, {0, 0, 1}, 4.6, -4.6);
        row("from above", {0, 0, 9}, {1, 0, 0}, 0, 90);
        row("from above, with an error of rounding", {1e-9, 0, 9}, {0, 1, 0}, 10, -10);
    }
    void findsTheBearing()
    {
        QFETCH(QList<double>, eye);
        QFETCH(QList<double>, up);
        QFETCH(double, northDeg);
        QFETCH(double, bearing);
        const ViewCamera camera{{eye[0], eye[1], eye[2]}, {}, {up[0], up[1], up[2]}, 30};
        QVERIFY(std::abs(bearingDeg(camera, northDeg) - bearing) < 1e-9);
    }
};

QTEST_GUILESS_MAIN(tst_ViewScale)
#include "tst_ViewScale.moc"
