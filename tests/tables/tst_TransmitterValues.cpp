#include "plugins/tables/cells/ValueList.h"
#include "plugins/tables/values/TransmitterValues.h"

#include <QtTest>

using namespace vlt::driver;

namespace {

/// A value of a transmitter: number, "absent", "omni" or the fault.
struct ValueCase
{
    const char *quantity;
    const char *text;
    const char *result;
    double unit = 1;
};

constexpr ValueCase ValueCases[] = {
    {"height", "30", "30"},
    {"height", "30 m", "30"},
    {"height", "30,5", "30.5"},
    {"height", "1 234,5", "1234.5"},
    {"height", "98.4 ft", "29.9923"}, // 98.4 x 0.3048
    {"height", "100'", "30.48"},
    {"height", "100", "30.48", 0.3048},
    {"height", "30 m", "30", 0.3048},
    {"height", "1.5 km", "1500"},
    {"height", "0", "0"},
    {"height", "2000", "2000"},
    {"height", "2000.1", "out of range"},
    {"height", "-5", "out of range"},
    {"height", "99999", "out of range"},
    {"height", "30 apples", "unreadable"},
    {"height", "--5", "unreadable"},
    {"height", "30/28", "unreadable"},
    {"height", " ", "absent"},
    {"height", "N/A", "absent"},
    {"height", "999999999", "absent"},
    {"height", "-9999.00", "absent"},
    {"azimuth", "120", "120"},
    {"azimuth", "120\u00B0", "120"},
    {"azimuth", "120 deg", "120"},
    {"azimuth", "133,5", "133.5"},
    {"azimuth", "100 gon", "90"},
    {"azimuth", "100", "90", 0.9},
    {"azimuth", "100\u00B0", "100", 0.9},
    {"azimuth", "100 Grad", "100"},
    {"azimuth", "400 grad", "0"},
    {"azimuth", "360", "0"},
    {"azimuth", "-360", "0"},
    {"azimuth", "-30", "330"},
    {"azimuth", "N120E", "120"},
    {"azimuth", "N 30\u00B0 W", "330"},
    {"azimuth", "S45,5E", "134.5"},
    {"azimuth", "s45w", "225"},
    {"azimuth", "N0W", "0"},
    {"azimuth", "S120E", "unreadable"}, // no quadrant
    {"azimuth", "N30O", "unreadable"},  // Ost or Ouest
    {"azimuth", "1200", "out of range"},
    {"azimuth", "north", "unreadable"},
    {"azimuth", "#N/A", "absent"},
    {"azimuth", "Omni", "omni"},
    {"tilt", "-4", "4", -1}, // the name of the column says that negative tilts point down
    {"tilt", "1\u00B0", "-1", -1},
    {"tilt", "0", "0", -1},
    {"tilt", "-2,5\u00B0", "-2.5"},
    {"tilt", "95", "out of range"},
    {"tilt", "Omni", "unreadable"},
    {"beam width", "65", "65"},
    {"beam width", "360", "360"},
    {"beam width", "Omni", "omni"},
    {"beam width", "-65", "out of range"},
    {"beam width", "wide", "unreadable"},
    {"frequency", "1.8 GHz", "1800"},
    {"frequency", "0", "out of range"},
    {"frequency", "700,800,900", "unreadable"},
    {"frequency", "9999", "9999"},
};

} // namespace

/// Values of transmitters in tables.
class tst_TransmitterValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsValues_data()
    {
        QTest::addColumn<QByteArray>("quantity");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<double>("unit");
        QTest::addColumn<QByteArray>("result");
        for (const ValueCase &row : ValueCases)
            QTest::newRow(
                qPrintable(QStringLiteral("%1 \"%2\", unit %3")
                               .arg(QString::fromUtf8(row.quantity), QString::fromUtf8(row.text))
                               .arg(row.unit)))
                << QByteArray(row.quantity) << QByteArray(row.text) << row.unit
                << QByteArray(row.result);
    }
    void readsValues()
    {
        QFETCH(QByteArray, quantity);
        QFETCH(QByteArray, text);
        QFETCH(double, unit);
        QFETCH(QByteArray, result);
        ValueWords words;
        words.isOmni = [](std::string_view word) { return word == "Omni"; };
        const std::string cell = text.toStdString();

        const TransmitterValue value = quantity == "height" ? readAntennaHeightM(cell, unit, words)
                                       : quantity == "azimuth" ? readAzimuthDeg(cell, unit, words)
                                       : quantity == "tilt"    ? readTiltDeg(cell, unit, words)
                                       : quantity == "beam width"
                                           ? readBeamWidthDeg(cell, unit, words)
                                           : readFrequency(cell, unit, words);

        QCOMPARE(value.fault    ? QByteArray(value.fault == ValueFault::Unreadable ? "unreadable"
                                                                                   : "out of range")
                 : value.isOmni ? QByteArray("omni")
                 : value.number ? QByteArray::number(*value.number, 'g', 6)
                                : QByteArray("absent"),
                 result);
        QCOMPARE(value.isAbsent(), result == "absent");
    }

    void splitsLists_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("parts"); // separated by underscores
        const auto row = [](const char *text, const char *parts) {
            QTest::newRow(text) << QByteArray(text) << QByteArray(parts);
        };
        row("120", "120");
        row("", "");
        row("N/A", "N/A");
        row("133,5", "133,5");
        row("1,234.5", "1,234.5");
        row("-30", "-30");
        row("120/240/0", "120_240_0");
        row("120\u00B0 / 240\u00B0 / 0\u00B0", "120\u00B0_240\u00B0_0\u00B0");
        row("30; 28,5 ;30 m", "30_28,5_30 m");
        row("0 | 120 |", "0_120_");
        row("/120/240", "_120_240");
        row("120;N/A;240", "120_N/A_240");
        row("0\n120\n240", "0_120_240");
        row("0-120-240", "0_120_240");
        row("0\u00B0-120\u00B0", "0\u00B0_120\u00B0");
        row("0 - 120 \u2013 240", "0_120_240");
        row("-2 - -4", "-2_-4");
        row("0,120,240", "0_120_240");
        row("[0, 120]", "0_120");
        row("2,5, 3,5", "2,5_3,5");
        row("30.5,28.0", "30.5_28.0");
        row("0,120,", "0_120_");
    }
    void splitsLists()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, parts);
        const std::string cell = text.toStdString();

        QByteArrayList found;
        for (const std::string_view part : splitList(cell))
            found += QByteArray(part.data(), static_cast<qsizetype>(part.size()));

        QCOMPARE(found.join('_'), parts);
    }

    void splitsNamesAtStrongMarksOnly()
    {
        QCOMPARE(splitNames("A/B-1/C, D"), (std::vector<std::string_view>{"A", "B-1", "C, D"}));
        QCOMPARE(splitNames("12-1"), std::vector<std::string_view>{"12-1"});
    }
};

QTEST_GUILESS_MAIN(tst_TransmitterValues)
#include "tst_TransmitterValues.moc"
