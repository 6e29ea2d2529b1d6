#include "CityTesting.h"
#include "LayerScenes.h"
#include "plugins/scene/buildings/CityColors.h"
#include "plugins/scene/reading/Stopped.h"
#include "support/Cases.h"
#include "support/GeoTiff.h"

#include <QDateTime>
#include <QFileInfo>
#include <QTemporaryDir>

#include <array>

namespace {

using namespace vlt::scene;
using vlt::colormaps::Rgba;

const QString Grey = QStringLiteral("c8c8c8"); ///< colour of buildings without a value

/// Triangles around the centres of pixels of 10 by 10, in order from east to west.
CityModel townOf(int buildings)
{
    CityModel city;
    for (int i = 0; i < buildings; ++i) {
        const double x = 10 * (buildings - 1 - i);
        towntest::add(city, {{{x + 2, 2}, {x + 8, 2}, {x + 5, 9}}});
    }
    return city;
}

QString hex(const std::vector<Rgba> &colors)
{
    QStringList texts;
    for (const Rgba &color : colors)
        texts << QStringLiteral("%1").arg(color.red << 16 | color.green << 8 | color.blue, 6, 16,
                                          QLatin1Char('0'));
    return texts.join(QLatin1Char(' '));
}

} // namespace

class tst_CityColors : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    void write(const char *name, const QByteArray &content)
    {
        writeFile(m_dir.filePath(QLatin1String(name)), content);
    }

    /// Writes a raster with the values in one row.
    void makeRaster(const char *name, const std::vector<double> &values, osg::Vec2d corner = {},
                    const char *system = "", int bands = 1)
    {
        const auto value = [&values](int column, int, int band) {
            return band == 1 ? values[std::size_t(column)] : 100;
        };
        makeGeoTiff(m_dir.filePath(QLatin1String(name)),
                    {int(values.size()), 1, bands, GDT_Float32,
                     northUp(corner.x(), corner.y(), 10, 1), system, value});
    }

    QString colorsOf(CityModel city, const QByteArray &colorText, Notices &notices,
                     const vlt::contract::BuildingColors &others = {})
    {
        const std::vector<std::string> directories = {"/nowhere", m_dir.path().toStdString()};
        return hex(townColors(city, colorText.toStdString(), others, directories, notices,
                              [](double) { return true; }));
    }

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        write("map.txt", "nv 1 2 3\n0 0 0 0\n50 100 0 0\n100 200 0 255\n");
        write("plain.txt", "0 0 0 0\n100 200 0 0\n");
        write("cmap=.txt", "0 0 0 0\n100 200 0 0\n");
        makeRaster("a.tif", {0, 25, 50, -99});
        makeRaster("a;nd=1.tif", {7});
        makeRaster("lambert.tif", {0, 25, 50, -99}, {221500, 6758000}, "EPSG:2154");
        write("text.tif", "no image");
    }

    void colorsBuildings_data()
    {
        const Cases<QByteArray, QString> row({"colorText", "colors"});
        // a.tif has 0, 25, 50 and -99 from west to east; the buildings are in order from east to
        // west.
        row("plain", "#1a2B3c", "1a2b3c 1a2b3c 1a2b3c 1a2b3c");
        row("none", {}, "c8c8c8 c8c8c8 c8c8c8 c8c8c8");
        row("absolute, mixed: 25 is half of 100,0,0",
            "IMAGE;a.tif;map.txt;average;absolute;interpolation;-99",
            "010203 640000 320000 000000");
        row("absolute, ranges", "IMAGE;a.tif;map.txt;average;absolute;colorrange;-99",
            "010203 640000 000000 000000");
        row("stretched over 0 .. 50: 25 is 50",
            "IMAGE;a.tif;map.txt;average;stretched;interpolation;-99",
            "010203 c800ff 640000 000000");
        row("full",
            "cmap:datasource=a.tif;nd=-99;cmap=map.txt;stretchcmap=TRUE;"
            "interpolatecmap=TRUE;band=1;type=minimum",
            "010203 c800ff 640000 000000");
        row("no-data is a value where nobody says so",
            "IMAGE;a.tif;plain.txt;average;absolute;interpolation", "000000 640000 320000 000000");
        row("the map has no colour for no-data",
            "IMAGE;a.tif;plain.txt;average;absolute;interpolation;-99",
            "c8c8c8 640000 320000 000000");
        row("map beside the document", "IMAGE;a.tif;/gone/map.txt;average;absolute;colorrange;-99",
            "010203 640000 000000 000000");
        row("strange names", "IMAGE;a;nd=1.tif;cmap=.txt;average;absolute;interpolation",
            "c8c8c8 c8c8c8 c8c8c8 0e0000");
        row("strange names, full",
            "cmap:datasource=a;nd=1.tif;nd=-32768;cmap=cmap=.txt;stretchcmap=FALSE;"
            "interpolatecmap=TRUE;band=1;type=minimum",
            "c8c8c8 c8c8c8 c8c8c8 0e0000");
    }

    void colorsBuildings()
    {
        QFETCH(const QByteArray, colorText);
        QFETCH(const QString, colors);
        Notices notices;

        QCOMPARE(colorsOf(townOf(4), colorText, notices), colors);
        const auto grey = colors.count(Grey) % 4; // without the buildings of the plain colour
        const bool isPartial = grey > 0 || colors.contains(QStringLiteral("010203"));
        QCOMPARE(notices.size(), isPartial ? 1U : 0U);
        if (isPartial)
            QVERIFY2(notices.front().find(" of 4 buildings have no value in the raster \"a") !=
                         std::string::npos,
                     notices.front().c_str());
    }

    void reportsWhatCannotBeUsed_data()
    {
        const Cases<QByteArray> row({"notice"});
        constexpr char OtherBand[] = "cmap:datasource=a.tif;cmap=map.txt;stretchcmap=TRUE;"
                                     "interpolatecmap=TRUE;band=2;type=minimum";
        for (const char *text : {"#12345", "#1234567", "#12 456", "red", "IMAGE;a.tif",
                                 "IMAGE;;;;;", "IMAGE;a.tif;map.txt;mean;absolute;interpolation",
                                 "IMAGE;a.tif;map.txt;average;absolute;sometimes;-99", OtherBand})
            row(text, "does not describe colors of buildings");
        row("IMAGE;x.tif;map.txt;average;absolute;interpolation",
            "\"x.tif\" cannot be used for colors (there is no such local file)");
        row("IMAGE;text.tif;map.txt;average;absolute;interpolation", "not recognized");
    }

    void reportsWhatCannotBeUsed()
    {
        QFETCH(const QByteArray, notice);
        Notices notices;

        QCOMPARE(colorsOf(townOf(2), QTest::currentDataTag(), notices), Grey + u' ' + Grey);
        QCOMPARE(notices.size(), 1U);
        QVERIFY2(notices.front().find(notice.toStdString()) != std::string::npos,
                 notices.front().c_str());
    }

    void readsTheBandOfTheDocument()
    {
        makeRaster("two.tif", {0, 25}, {}, "", 2);
        for (const bool isOther : {false, true}) {
            Notices notices;
            vlt::contract::BuildingColors others;
            others.band = isOther ? 2 : 1;
            QCOMPARE(colorsOf(townOf(2), "IMAGE;two.tif;map.txt;minimum;absolute;interpolation",
                              notices, others),
                     isOther ? QStringLiteral("c800ff c800ff") : QStringLiteral("320000 000000"));
        }
    }

    /// Only while the raster is the one whose range it is.
    void takesTheRangeOfTheDocument()
    {
        const QFileInfo file(m_dir.filePath(QStringLiteral("a.tif")));
        const qint64 timeS = file.lastModified().toSecsSinceEpoch();
        for (const qint64 laterS : {0, 1}) {
            Notices notices;
            vlt::contract::BuildingColors others;
            others.range = {0, 100, file.size(), timeS + laterS};
            QCOMPARE(colorsOf(townOf(4), "IMAGE;a.tif;map.txt;average;stretched;interpolation;-99",
                              notices, others),
                     laterS ? QStringLiteral("010203 c800ff 640000 000000")
                            : QStringLiteral("010203 640000 320000 000000"));
        }
    }

    void colorsByAField_data()
    {
        using enum vlt::contract::FieldColoring;
        const Cases<QByteArray, int, QString, QString, QString> row(
            {"field", "coloring", "colors", "notice", "legend"});
        const char *map = "map stop000000 stop640000 stopc800ff novalue010203";
        row("mixed", "n", int(Interpolation), "320000 640000 010203",
            "1 of 3 buildings have no value", map);
        row("ranges", "N", int(ColorRange), "000000 640000 010203",
            "1 of 3 buildings have no value", map);
        row("numbers in texts", "t", int(Interpolation), "320000 010203 010203",
            "2 of 3 buildings have no value in the field \"t\"", map);
        row("distinct: b once, a twice, none", "use", int(Distinct), "e68a00 1f6fb5 c8c8c8",
            "1 of 3 buildings", "field value1f6fb5 valuee68a00 novaluec8c8c8");
        row("no such field", "width", int(Distinct), "c8c8c8 c8c8c8 c8c8c8", "width");
    }

    void colorsByAField()
    {
        QFETCH(QByteArray, field);
        QFETCH(int, coloring);
        QFETCH(QString, colors);
        QFETCH(QString, notice);
        QByteArray features;
        const auto add = [&features](const QByteArray &properties) {
            features += (features.isEmpty() ? "" : ",") +
                        QByteArray(R"({"type":"Feature","properties":{)") + properties +
                        R"(},"geometry":null})";
        };
        add(R"("n":25,"t":"2,5e1","use":"b")");
        add(R"("n":50,"t":"fifty","use":"a")");
        add(R"("n":null,"t":null,"use":" ")");
        add(R"("n":1,"t":"a","use":"a")");
        write("fields.geojson", R"({"type":"FeatureCollection","features":[)" + features + "]}");
        vlt::contract::BuildingDocument document;
        document.footprints.file = "fields.geojson";
        document.colors.field = field.toStdString();
        document.colors.map = "map.txt";
        document.colors.coloring = static_cast<vlt::contract::FieldColoring>(coloring);
        CityModel city = townOf(3);
        for (std::uint32_t i = 0; i < 3; ++i)
            city.footprints.features[i].row = i;
        city.counts.drawn = 3;
        Notices notices;

        QCOMPARE(hex(fieldColors(city, document, {m_dir.path().toStdString()}, notices,
                                 [](double) { return true; })),
                 colors);
        QCOMPARE(notices.size(), 1U);
        QVERIFY2(QString::fromStdString(notices.front()).contains(notice), notices.front().c_str());
        QStringList legend;
        for (const auto &[kind, color, texts] : city.legend) {
            legend << QString::fromStdString(kind);
            if (color[3] > 0)
                legend.last() += hex({{color[0], color[1], color[2]}});
        }
        QTEST(legend.join(u' '), "legend");
    }

    void transformsPlaces()
    {
        // 221505, 221515 and 221525 by 6758005, transformed with gdaltransform.
        constexpr std::array<std::pair<double, double>, 3> Middles = {
            {{-3.3925193, 47.7480247}, {-3.3923863, 47.7480320}, {-3.3922533, 47.7480393}}};
        CityModel city = townOf(3);
        for (std::size_t i = 0; i < city.footprints.positions.size(); ++i) {
            const auto &[x, y] = Middles[2 - i / 3];
            city.footprints.positions[i] = {x + (i % 3 == 1 ? 2e-5 : 0),
                                            y + (i % 3 == 2 ? 2e-5 : 0)};
        }
        city.srs = SRS_WKT_WGS84_LAT_LONG;
        Notices notices;

        QCOMPARE(
            colorsOf(city, "IMAGE;lambert.tif;map.txt;average;absolute;interpolation;-99", notices),
            QStringLiteral("640000 320000 000000"));
        QVERIFY(notices.empty());
    }

    /// Also while the raster's range is read.
    void stops()
    {
        std::vector<double> shares;
        std::size_t stopAt = 99;
        const auto stop = [&](double share) {
            shares.push_back(share);
            return shares.size() < stopAt;
        };
        const auto colors = [&] {
            Notices notices;
            shares.clear();
            CityModel city = townOf(3);
            return townColors(city, "IMAGE;a.tif;map.txt;average;stretched;interpolation;-99", {},
                              {m_dir.path().toStdString()}, notices, stop);
        };

        QCOMPARE(colors().size(), 3U);
        QVERIFY(std::is_sorted(shares.begin(), shares.end()) && shares.size() == 2);
        for (stopAt = 1; stopAt <= 2; ++stopAt)
            QVERIFY_EXCEPTION_THROWN(colors(), Stopped);
    }
};

QTEST_GUILESS_MAIN(tst_CityColors)
#include "tst_CityColors.moc"
