#include "city/CityInputs.h"
#include "city/CityValues.h"
#include "city/HeightCounts.h"
#include "city/SeaLevelGuess.h"
#include "contract/BadLayer.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vlt;
using namespace vlt::contract;

namespace {

constexpr double East = 222000; ///< origin of the footprints
constexpr double North = 6758000;

/// "28: 19 drawn, 6 missingHeight, 2 notPositive".
QString summary(const CityCounts &counts)
{
    QString text = u"%1: %2 drawn"_s.arg(counts.features).arg(counts.drawn);
    const auto add = [&text](std::size_t count, const char *key) {
        if (count > 0)
            text += u", %1 %2"_s.arg(count).arg(QLatin1String(key));
    };
    for (const auto &[key, count] : LeftOutCounts)
        add(counts.leftOut.*count, key);
    for (const auto &[key, count] : SubstituteCounts)
        add(counts.substitutes.*count, key);
    add(counts.coincident, "coincident");
    return text;
}

template<typename Range, typename Member>
QString listed(const Range &values, const Member &member)
{
    QStringList texts;
    for (const auto &value : values)
        texts << QString::number(std::round(double(member(value)) * 100) / 100);
    return texts.join(u' ');
}

/// A document with these changes.
template<typename Change>
BuildingDocument document(const char *file, const char *heightField, const Change &change)
{
    BuildingDocument made;
    made.footprints.file = std::string(VLT_FOOTPRINTS "/") + file;
    made.footprints.heightField = heightField;
    change(made.footprints, made.footprints.heights);
    return made;
}

BuildingDocument document(const char *file, const char *heightField)
{
    return document(file, heightField, [](BuildingFootprints &, BuildingHeights &) {});
}

void addShapes(const Cases<BuildingDocument, QString, QString> &row)
{
    row("shapes", document("shapes.geojson", "HEIGHT"),
        u"8: 5 drawn, 3 noShape, 5 zeroGround, 1 coincident"_s, u"6 6 6 6 6"_s);
    row("parts of a feature count once", document("parts.geojson", "HEIGHT"),
        u"3: 3 drawn, 3 zeroGround"_s, u"10 10 5 7 7"_s);
    row("not on the earth", document("far.geojson", "HEIGHT"),
        u"10: 9 drawn, 1 noPosition, 9 zeroGround"_s, u"9 9 9 9 9 9 9 9 9"_s);
    row("curves", document("curves.csv", "HEIGHT"), u"2: 2 drawn, 2 zeroGround"_s, u"12 0.5"_s);
}

} // namespace

class tst_CityInputs : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    city::CityInputs read(const BuildingDocument &document) const
    {
        city::Notices notices;
        return city::readCityInputs(document, {m_dir.path().toStdString()}, notices,
                                    [](double) { return true; });
    }

private Q_SLOTS:
    void initTestCase()
    {
        // 40 m at East, 1 m more each 100 m to the east
        makeGeoTiff(m_dir.filePath(u"slope.tif"_s),
                    {60, 20, 1, GDT_Float32, northUp(East - 500, North - 500, 100, 20), "EPSG:2154",
                     [](int column, int, int) { return 35.5 + column; }});
    }

    void readsTexts_data()
    {
        const Cases<QByteArray, QByteArray> row({"texts", "read"}); // "~": approximate
        row("numbers", "12|12.5|12,5| 7 |1e1|+7|-5|.5", "12|12.5|12.5|7|10|7|-5|0.5");
        row("groups", "1 234,5|1\u00A0234|1'234|1,234.5|1.234,5|1.234.567|1,234",
            "1234.5|1234|1234|1234.5|1234.5|1234567|1.234");
        row("metres", "12 m|12m|12 Meters|9 m\u00E8tres|250 cm|12 m.",
            "12 m|12 m|12 m|9 m|2.5 m|12 m");
        row("feet", "10 ft|10'|10\u2032|10' 6\"|10\u20326\u2033|10'-6\"|10 ft 6 in|10 pieds",
            "3.048 m|3.048 m|3.048 m|3.2004 m|3.2004 m|3.2004 m|3.2004 m|3.048 m");
        row("levels", "3 \u00E9tages|3 \u00C9TAGES|1 niveau|2 levels|3 Geschosse|4 piani|R+3|R+2+C",
            "3 levels|3 levels|1 levels|2 levels|3 levels|4 levels|4 levels|3 levels");
        row("approximate", "~10|\u2248 9 m|env. 12|c. 12|circa 8|> 20|about 5 m",
            "~10|~9 m|~12|~12|~8|~20|~5 m");
        row("ranges and lists",
            "10-12|10 \u2013 12 m|10 \u00E0 12|10 m - 12 m|10-20 ft|10;12;8|10 / 12",
            "~11|~11 m|~11|~11 m|~4.572 m|~12|~12");
        row("none", "|-|N/A|abc|NaN|inf|1e999|12 x|12 m?|5-|1-2-3|3 m - 4 levels|12 (2020)",
            "none|none|none|none|none|none|none|none|none|none|none|none|none");
    }

    void readsTexts()
    {
        QFETCH(QByteArray, texts);
        QFETCH(QByteArray, read);
        QByteArrayList found;
        for (const QByteArray &text : texts.split('|')) {
            const auto height = city::readHeight(text.toStdString());
            found << (height ? (height->isApproximate ? "~" : "") +
                                   QByteArray::number(height->number, 'g', 8) +
                                   (height->unit
                                        ? ' ' + QByteArray(HeightUnitWords[int(*height->unit)])
                                        : QByteArray())
                             : QByteArray("none"));
        }

        QCOMPARE(found.join('|'), read);
    }

    void countsBuildings_data()
    {
        const Cases<BuildingDocument, QString, QString> row({"document", "counts", "heights"});
        using Fields = BuildingFootprints;
        row("texts", document("texts.geojson", "height"),
            u"28: 19 drawn, 6 missingHeight, 2 notPositive, 1 tooHigh, 19 zeroGround"_s,
            u"12 12.5 12.5 12.5 10 7 12 12 12 12 11.89 11.89 12.04 10 11 9 12 1234.5 9999"_s);
        row("numbers in feet, by a factor; units in texts stand",
            document("texts.geojson", "HEIGHT",
                     [](Fields &fields, BuildingHeights &heights) {
                         heights.unit = HeightUnit::Feet;
                         heights.factor = 0.5;
                         heights.levelHeightM = 2.5;
                         fields.where = "HEIGHT IN ('12', '12 m', 'R+3', '39 ft')";
                     }),
            u"4: 4 drawn, 4 zeroGround"_s, u"1.83 12 11.89 10"_s);
        const auto levels = [](Fields &, BuildingHeights &heights) {
            heights.unit = HeightUnit::Levels;
        };
        row("levels", document("levels.geojson", "building:levels", levels),
            u"8: 5 drawn, 2 missingHeight, 1 notPositive, 5 zeroGround"_s, u"6 15 30 3 12"_s);
        row("levels, else heights",
            document("levels.geojson", "building:levels",
                     [&](Fields &fields, BuildingHeights &heights) {
                         levels(fields, heights);
                         heights.elseField = "height";
                     }),
            u"8: 6 drawn, 1 missingHeight, 1 notPositive, 1 elseField, 6 zeroGround"_s,
            u"6 15 30 3 12 8"_s);
        row("heights, else levels, else 4 m; undersides",
            document("levels.geojson", "height",
                     [](Fields &, BuildingHeights &heights) {
                         heights.elseField = "building:levels";
                         heights.elseUnit = HeightUnit::Levels;
                         heights.defaultM = 4;
                         heights.bottomField = "min_height";
                     }),
            u"8: 8 drawn, 3 elseField, 2 defaultHeight, 8 zeroGround, 1 raisedBottom"_s,
            u"6 16.5 4 4 35 3 12 8"_s);
        row("those of a filter on another field",
            document("levels.geojson", "building:levels",
                     [&](Fields &fields, BuildingHeights &heights) {
                         levels(fields, heights);
                         fields.where = "usage = 'water \"tower\"' OR building = 'roof'";
                     }),
            u"2: 1 drawn, 1 missingHeight, 1 zeroGround"_s, u"30"_s);
        row("above sea level",
            document("sea_level.geojson", "Z_MAX",
                     [](Fields &, BuildingHeights &heights) {
                         heights.reference = HeightReference::Sea;
                         heights.base = BaseRule::Field;
                         heights.baseField = "Z_SOL";
                     }),
            u"6: 3 drawn, 1 missingHeight, 2 belowGround, 1 terrainBase, 1 lowestGround"_s,
            u"12.5 7.5 20"_s);
        addShapes(row);
    }

    void countsBuildings()
    {
        QFETCH(BuildingDocument, document);
        QFETCH(QString, counts);
        QFETCH(QString, heights);

        const city::CityInputs inputs = read(document);

        QCOMPARE(summary(inputs.counts), counts);
        QCOMPARE(listed(inputs.footprints.buildings, [](const auto &one) { return one.heightM; }),
                 heights);
        QCOMPARE(inputs.counts.features,
                 inputs.counts.drawn + sumOf(inputs.counts.leftOut, LeftOutCounts));

        // The count without shapes and ground.
        const city::HeightCounts fields =
            city::HeightValues(document.footprints.file, document.footprints, [](double) {
                return true;
            }).count(document.footprints.heights);
        LeftOut leftOut = inputs.counts.leftOut;
        leftOut.belowGround = leftOut.noShape = leftOut.noPosition = 0;
        QCOMPARE(fields.leftOut, leftOut);
        QCOMPARE(fields.fromField + fields.fromElseField + fields.byDefault,
                 inputs.counts.features - sumOf(leftOut, LeftOutCounts));
        QCOMPARE(fields.fromElseField, inputs.counts.substitutes.elseField);
        QCOMPARE(fields.byDefault, inputs.counts.substitutes.defaultHeight);
    }

    void standsOnTheGround_data()
    {
        const Cases<QByteArray, BaseRule, QString> row({"file", "rule", "bases"});
        row("each part on its own", "parts.geojson", BaseRule::Mean,
            u"40.05 49.05 40.05 40.1 40.45"_s);
        row("minimum", "parts.geojson", BaseRule::Minimum, u"40 49 40 40 40.4"_s);
        row("maximum", "parts.geojson", BaseRule::Maximum, u"40.1 49.1 40.1 40.2 40.5"_s);
        row("zero", "parts.geojson", BaseRule::Zero, u"0 0 0 0 0"_s);
    }

    void standsOnTheGround()
    {
        QFETCH(QByteArray, file);
        QFETCH(BaseRule, rule);
        QFETCH(QString, bases);
        BuildingDocument made = document(file, "HEIGHT");
        made.terrain.file = "slope.tif";
        made.footprints.heights.base = rule;

        QCOMPARE(listed(read(made).baseM, [](float base) { return base; }), bases);
    }

    void transformsToTheTerrain()
    {
        BuildingDocument made = document("degrees.geojson", "NB_ETAGES");
        made.terrain.file = "slope.tif";

        const city::CityInputs inputs = read(made);

        QCOMPARE(summary(inputs.counts), u"5: 4 drawn, 1 missingHeight"_s);
        // computed with gdaltransform
        QCOMPARE(listed(inputs.baseM, [](float base) { return base; }),
                 u"59.62 60.37 61.11 62.61"_s);
    }

    void countsBuildingsWithoutAValue()
    {
        // under the first 100 m; buildings stand at 0, 20, 80, 100 and 120 m
        makeGeoTiff(m_dir.filePath(u"values.tif"_s),
                    {10, 2, 1, GDT_Byte, northUp(East, North - 5, 10, 2), "EPSG:2154",
                     [](int, int, int) { return 1; }});
        const auto counted = [this](const std::string &raster, const char *field = "") {
            BuildingDocument made = document("levels.geojson", "building:levels");
            if (!raster.empty())
                made.footprints.wallColor =
                    "IMAGE;" + raster + ";map.txt;average;absolute;interpolation";
            made.colors.field = field;
            made.colors.coloring = vlt::contract::FieldColoring::Distinct;
            return summary(city::readCityValues(made, {m_dir.path().toStdString()},
                                                city::ClassCounts::Wanted,
                                                [](double) { return true; })
                               .city.counts);
        };

        const QString others = u"8: 5 drawn, 2 missingHeight, 1 notPositive, 5 zeroGround"_s;
        QCOMPARE(counted("values.tif"), others + u", 2 noValue"_s);
        QCOMPARE(counted("none.tif"), others + u", 5 noValue"_s);
        QCOMPARE(counted({}, "usage"), others + u", 1 noValue"_s);
        QCOMPARE(counted({}, "none"), others + u", 5 noValue"_s);
    }

    void valuesBuildings_data()
    {
        const Cases<int, bool, QByteArray, QString> row({"type", "isNamed", "mode", "values"});
        row("levels: no classes", GDT_Float32, false, "mostRepresented",
            u"1 (4) 1 (4) 2 (4) - -"_s);
        row("whole levels: none either", GDT_Byte, false, "average",
            u"1.5 (4) 1.5 (4) 2 (4) - -"_s);
        row("integers that are no levels", GDT_Byte, false, "mostRepresented",
            u"1 (4) 1 (4) 2 (4) - -: 1=2 2=2, 1=2 2=2, 2=4, , "_s);
        row("classes with names", GDT_Byte, true, "maximum",
            u"2 (4) 2 (4) 2 (4) - -: 1=2 woods=2, 1=2 woods=2, woods=4, , "_s);
    }

    /// Four pixels under each of the first three buildings, which stand at 0, 20 and 80 m.
    void valuesBuildings()
    {
        QFETCH(int, type);
        QFETCH(bool, isNamed);
        QFETCH(QByteArray, mode);
        makeGeoTiff(m_dir.filePath(u"classes.tif"_s),
                    {20, 2, 1, GDALDataType(type), northUp(East, North, 5, 2), "EPSG:2154",
                     [](int column, int row, int) { return row == 0 && column < 16 ? 1 : 2; },
                     [isNamed](GDALDataset &made) {
                         const char *const names[] = {"sea", "", "woods", nullptr};
                         if (isNamed)
                             made.GetRasterBand(1)->SetCategoryNames(const_cast<char **>(names));
                     }});
        BuildingDocument made = document("levels.geojson", "building:levels");
        made.footprints.roofColor = "cmap:datasource=classes.tif;cmap=m.txt;stretchcmap=FALSE;"
                                    "interpolatecmap=TRUE;band=1;type=" +
                                    mode.toStdString();

        const city::CityValues read =
            city::readCityValues(made, {m_dir.path().toStdString()}, city::ClassCounts::Wanted,
                                 [](double) { return true; });

        QStringList found;
        QStringList shares;
        for (const city::FeatureValue &one : read.values) {
            found << (one.value ? u"%1 (%2)"_s.arg(*one.value).arg(one.pixels) : u"-"_s);
            QStringList counts;
            for (const auto &[value, pixels] : read.countsOf(one)) {
                for (const auto &[known, name] : read.classes) {
                    if (known == value)
                        counts << u"%1=%2"_s.arg(QString::fromStdString(name)).arg(pixels);
                }
            }
            shares << counts.join(u' ');
        }
        const QString classes = read.classes.empty() ? QString() : u": "_s + shares.join(u", ");
        QTEST(found.join(u' ') + classes, "values");
    }

    void noticesHeightsAboveSea_data()
    {
        // the ground of 12 buildings and their values, each by its first one and its step
        const Cases<double, double, double, double, bool> row(
            {"ground", "groundStep", "value", "valueStep", "isAboveSea"});
        row("high ground", 120, 0.1, 128, 1, true);
        row("sloped ground", 20, 3, 27, 3.4, true);
        row("heights on high ground", 120, 1, 4, 2, false);
        row("heights on sloped ground", 20, 3, 30, -1.5, false);
        row("towers on low ground", 3, 0.1, 20, 6, false);
        row("flat ground at the sea", 0, 0, 5, 1, false);
    }

    void noticesHeightsAboveSea()
    {
        QFETCH(double, ground);
        QFETCH(double, groundStep);
        QFETCH(double, value);
        QFETCH(double, valueStep);
        city::CityInputs city;
        for (std::uint32_t i = 0; i < 12; ++i) {
            city.footprints.features.push_back({i});
            city.footprints.buildings.push_back(
                {0, 0, static_cast<float>(value + valueStep * i), i});
            city.baseM.push_back(static_cast<float>(ground + groundStep * i));
        }

        QTEST(city::areProbablyAboveSea(city), "isAboveSea");
        city.footprints.features.front().groundM = 5;
        QVERIFY(!city::areProbablyAboveSea(city));
    }

    void refusesFilters()
    {
        for (const auto &[where, named] :
             {std::pair("usage = ", "the filter \"usage = \" cannot be used"),
              std::pair("usage = 'church'", "leaves no building")}) {
            BuildingDocument made = document("levels.geojson", "height");
            made.footprints.where = where;
            QByteArray fault;
            try {
                read(made);
            } catch (const BadLayer &bad) {
                fault = bad.what();
            }
            QVERIFY2(fault.contains(named), fault);
        }
    }
};

QTEST_GUILESS_MAIN(tst_CityInputs)
#include "tst_CityInputs.moc"
