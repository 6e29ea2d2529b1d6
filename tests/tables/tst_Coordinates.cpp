#include "plugins/tables/values/Angle.h"
#include "plugins/tables/values/CoordinatePair.h"

#include <QtTest>

#include <cmath>

using namespace vlt::driver;

/// Notations of positions in tables.
class tst_Coordinates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsAngles_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isX");
        QTest::addColumn<double>("degrees");
        // 48 + 51/60 + 24/3600 = 48.856667; 3 + 22/60 + 5.12/3600 = 3.368089
        QTest::newRow("decimal") << QByteArray("48.85") << false << 48.85;
        QTest::newRow("decimal comma") << QByteArray(" -3,37 ") << true << -3.37;
        QTest::newRow("hemisphere behind") << QByteArray("48.85 S") << false << -48.85;
        QTest::newRow("signs") << QByteArray("48°51'24\"N") << false << 48.8566667;
        QTest::newRow("doubled seconds mark") << QByteArray("48°51'24\"\"N") << false << 48.8566667;
        QTest::newRow("typographic") << QByteArray("48°51′24″N") << false << 48.8566667;
        QTest::newRow("blanks") << QByteArray("48 51 24.0 N") << false << 48.8566667;
        QTest::newRow("letter first") << QByteArray("N48 51.4") << false << 48.8566667;
        QTest::newRow("letters") << QByteArray("48d51m24s") << false << 48.8566667;
        QTest::newRow("colons") << QByteArray("48:51:24") << false << 48.8566667;
        QTest::newRow("west") << QByteArray("3°22'05.12\"W") << true << -3.3680889;
        QTest::newRow("seconds with a comma") << QByteArray("3°22'05,12\"w") << true << -3.3680889;
        QTest::newRow("minus and parts") << QByteArray("-0 30 0") << true << -0.5;
    }
    void readsAngles()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isX);
        QFETCH(double, degrees);

        const Angle angle = readAngle(text.toStdString(), isX ? Axis::X : Axis::Y);

        QVERIFY2(!angle.fault, angle.fault ? angle.fault->text().key : "");
        QVERIFY(std::abs(angle.degrees - degrees) < 1e-6);
    }

    void refusesWhatIsNoAngle_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char *text :
             {"", "-", "north", "48.85 E", "48 61 00", "48 51 60", "48.5 30 N", "1 2 3 4", "3.37 O",
              "-3.37 W", "48.8.5", "1e5x", "12/05/2020", "NaN", "10 N 20 S"})
            QTest::newRow(*text ? text : "empty") << QByteArray(text);
    }
    void refusesWhatIsNoAngle()
    {
        QFETCH(QByteArray, text);

        QVERIFY(readAngle(text.toStdString(), Axis::Y).fault);
    }

    void readsPairs_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("good");
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::newRow("latitude first")
            << QByteArray("51.34764,12.31237") << true << 12.31237 << 51.34764;
        QTest::newRow("semicolon, decimal commas")
            << QByteArray("51,34;12,31") << true << 12.31 << 51.34;
        QTest::newRow("D/M/S") << QByteArray("49°11'24\"N,16°30'0\"E") << true << 16.5 << 49.19;
        QTest::newRow("letters turn it round")
            << QByteArray("16.5 E, 49.19 N") << true << 16.5 << 49.19;
        QTest::newRow("WKT has longitude first")
            << QByteArray("POINT (2.27 48.85)") << true << 2.27 << 48.85;
        QTest::newRow("one number with a comma") << QByteArray("48,85") << false << 0.0 << 0.0;
        QTest::newRow("outside the globe") << QByteArray("95.0,12.0") << false << 0.0 << 0.0;
        QTest::newRow("three numbers") << QByteArray("2.27,48.85,35.0") << false << 0.0 << 0.0;
    }
    void readsPairs()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, good);
        QFETCH(double, x);
        QFETCH(double, y);

        const CoordinatePair pair = readCoordinatePair(text.toStdString());

        QCOMPARE(!pair.fault, good);
        QVERIFY(std::abs(pair.x - x) < 1e-9 && std::abs(pair.y - y) < 1e-9);
    }
};

QTEST_GUILESS_MAIN(tst_Coordinates)
#include "tst_Coordinates.moc"
