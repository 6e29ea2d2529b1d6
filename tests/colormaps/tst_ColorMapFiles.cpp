#include "ColorMapTesting.h"
#include "support/Files.h"

#include "colormaps/ColorLookup.h"
#include "support/Cases.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>

#include <gdal_priv.h>
#include <gdal_utils.h>

using namespace Qt::StringLiterals;
using namespace vlt::colormaps;

namespace {

constexpr double NoData = -99999;

QStringList filesUnder(const QString &folder)
{
    QStringList paths;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths << files.next();
    paths.removeIf([](const QString &path) { return path.endsWith(u".md"_s); });
    paths.sort();
    return paths;
}

std::string bytesOf(const QString &path)
{
    return QFile::encodeName(path).toStdString();
}

/// The colours of GDAL's own colour relief, four bytes per value; empty if it fails.
std::vector<std::uint8_t> reliefColors(const std::vector<float> &values, const std::string &mapPath)
{
    const int width = static_cast<int>(values.size());
    GDALDriver *memory = GetGDALDriverManager()->GetDriverByName("MEM");
    const GDALDatasetUniquePtr source(memory->Create("", width, 1, 1, GDT_Float32, nullptr));
    std::vector<float> copy = values;
    GDALRasterBand *band = source->GetRasterBand(1);
    if (band->SetNoDataValue(NoData) != CE_None ||
        band->RasterIO(GF_Write, 0, 0, width, 1, copy.data(), width, 1, GDT_Float32, 0, 0,
                       nullptr) != CE_None)
        return {};
    std::array<char *, 4> arguments = {const_cast<char *>("-of"), const_cast<char *>("MEM"),
                                       const_cast<char *>("-alpha"), nullptr};
    GDALDEMProcessingOptions *options = GDALDEMProcessingOptionsNew(arguments.data(), nullptr);
    int failed = 0;
    const GDALDatasetUniquePtr relief(GDALDataset::FromHandle(GDALDEMProcessing(
        "relief", source.get(), "color-relief", mapPath.c_str(), options, &failed)));
    GDALDEMProcessingOptionsFree(options);
    std::vector<std::uint8_t> colors(4 * values.size());
    if (!relief || failed != 0 ||
        relief->RasterIO(GF_Read, 0, 0, width, 1, colors.data(), width, 1, GDT_Byte, 4, nullptr, 4,
                         0, 1, nullptr) != CE_None)
        return {};
    return colors;
}

/// Values below, at, between and above those of a map.
std::vector<float> valuesAround(const ColorMap &map)
{
    const std::vector<ColorAssociation> &all = map.associations();
    std::vector<float> values = {float(all.front().value - 1)};
    for (std::size_t i = 0; i < all.size(); ++i) {
        values.push_back(float(all[i].value));
        for (const double share : {0.1, 0.5, 0.77}) {
            if (i + 1 < all.size())
                values.push_back(float(std::lerp(all[i].value, all[i + 1].value, share)));
        }
    }
    values.push_back(float(all.back().value + 1));
    return values;
}

int largestDifference(const Rgba &color, const std::uint8_t *other)
{
    return std::max({std::abs(color.red - other[0]), std::abs(color.green - other[1]),
                     std::abs(color.blue - other[2]), std::abs(color.alpha - other[3])});
}

/// Approximate lightness of a colour, for every kind of colour vision.
double lightness(const Rgba &color)
{
    const auto linear = [](std::uint8_t part) { return std::pow(part / 255.0, 2.2); };
    return std::cbrt(0.2126 * linear(color.red) + 0.7152 * linear(color.green) +
                     0.0722 * linear(color.blue));
}

} // namespace

class tst_ColorMapFiles : public QObject
{
    Q_OBJECT

    QStringList m_shipped;

private Q_SLOTS:
    void initTestCase()
    {
        GDALAllRegister();
        m_shipped = filesUnder(QStringLiteral(VLT_INSTALLATION "/addons/telecom/colormaps"));
        QVERIFY(m_shipped.size() >= 15);
    }

    void agreesWithTheColorRelief_data()
    {
        const Cases<QString> row({"path"});
        QStringList paths = m_shipped + filesUnder(QStringLiteral(VLT_SAMPLES));
        if (qEnvironmentVariableIsSet("VLT_MORE_COLOR_MAPS")) // a folder with more maps
            paths += filesUnder(qEnvironmentVariable("VLT_MORE_COLOR_MAPS"));
        for (const QString &path : paths)
            row(qPrintable(QFileInfo(path).fileName()), path);
    }

    void agreesWithTheColorRelief()
    {
        QFETCH(QString, path);
        const QTemporaryDir dir;
        const std::string copy = fileWith(dir, u"a.txt"_s, readFile(path));
        const bool isRelative = readFile(path).contains('%');
        ReportedErrors errors;
        ColorMap map;
        QVERIFY(isRelative ? map.load(copy, 0, 1000) : map.load(copy));

        // GDAL computes percentages from the raster's range.
        std::vector<float> values =
            isRelative ? std::vector<float>{0, 1, 99, 250, 333, 500, 640, 801, 999, 1000}
                       : valuesAround(map);
        if (map.noDataColor())
            values.push_back(NoData);
        const std::vector<std::uint8_t> expected = reliefColors(values, copy);
        QCOMPARE(expected.size(), 4 * values.size());

        for (std::size_t i = 0; i < values.size(); ++i) {
            const double value = values[i] == float(NoData) ? std::nan("") : values[i];
            const Rgba color = *colorOf(map, value, Interpretation::Interpolation);
            const std::uint8_t *other = &expected[4 * i];
            QVERIFY2(largestDifference(color, other) <= 1,
                     qPrintable(u"%1: %2 and %3"_s.arg(value).arg(
                         written(color), written(Rgba{other[0], other[1], other[2], other[3]}))));
        }
        QCOMPARE(errors.texts(), QStringList());
    }

    void shippedMapsServeAbsoluteAndStretched()
    {
        for (const QString &path : std::as_const(m_shipped)) {
            ReportedErrors errors;
            ColorMap map;
            QVERIFY2(map.load(bytesOf(path)) && map.minimum() < map.maximum(), qPrintable(path));
            QVERIFY2(map.load(bytesOf(path), 0, 1), qPrintable(path));
            QVERIFY2(map.noDataColor(), qPrintable(path));
            QCOMPARE(errors.texts(), QStringList());
        }
    }

    /// Every kind of colour vision sees lightness, so lightness alone must show the order.
    void colorblindMapsChangeSteadilyInLightness()
    {
        const QStringList maps = m_shipped.filter(u"_colorblind"_s);
        QVERIFY(maps.size() >= 5);
        for (const QString &path : maps) {
            ColorMap map;
            QVERIFY(map.load(bytesOf(path)));
            const auto lightnessAt = [&map](std::size_t i) {
                return lightness(map.associations()[i].color);
            };
            const bool isDifference = path.contains(u"difference"_s);
            for (std::size_t i = 1; i < map.associations().size(); ++i) {
                const bool rises = isDifference ? map.associations()[i].value <= 0
                                                : lightnessAt(0) < lightnessAt(1);
                const double step = lightnessAt(i) - lightnessAt(i - 1);
                QVERIFY2((rises ? step : -step) > 0.02, qPrintable(path + u" %1"_s.arg(i)));
            }
        }
    }
};

QTEST_GUILESS_MAIN(tst_ColorMapFiles)
#include "tst_ColorMapFiles.moc"
