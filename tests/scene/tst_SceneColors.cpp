#include "contract/QueryOptions.h"
#include "landscape/Relief.h"
#include "linkpath/Clearance.h"
#include "plugins/scene/mesh/Palette.h"
#include "sites/SectorColorSets.h"
#include "support/Cases.h"

#include <QColor>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace vlt;

namespace {

using Light = std::array<double, 3>; ///< red, green, blue, linear, 0 .. 1
using Matrix = std::array<Light, 3>;

constexpr double LeastContrast = 3; ///< of graphical objects, WCAG 2.1, criterion 1.4.11

/// G. M. Machado, M. M. Oliveira, L. A. F. Fernandes: A Physiologically-based Model for Simulation
/// of Color Vision Deficiency, IEEE Transactions on Visualization and Computer Graphics 15 (2009),
/// the matrices of severity 1.
constexpr Matrix Normal = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
constexpr Matrix Protanopia = {{{0.152286, 1.052583, -0.204868},
                                {0.114503, 0.786281, 0.099216},
                                {-0.003882, -0.048116, 1.051998}}};
constexpr Matrix Deuteranopia = {{{0.367322, 0.860646, -0.227968},
                                  {0.280085, 0.672501, 0.047413},
                                  {-0.011820, 0.042940, 0.968881}}};
constexpr Matrix Tritanopia = {{{1.255528, -0.076749, -0.178779},
                                {-0.078411, 0.930809, 0.147602},
                                {0.004733, 0.691367, 0.303900}}};

double linear(double value)
{
    const double share = value / 255;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

Light lightOf(const landscape::Rgb &rgb)
{
    return {linear(rgb[0]), linear(rgb[1]), linear(rgb[2])};
}

landscape::Rgb rgbOf(const QColor &color)
{
    return {double(color.red()), double(color.green()), double(color.blue())};
}

landscape::Rgb edgeOf(const landscape::Rgb &rgb)
{
    const auto part = [](double value) { return static_cast<unsigned char>(value); };
    const scene::Color edge =
        scene::palette::edgeOf({part(rgb[0]), part(rgb[1]), part(rgb[2]), 255});
    return {double(edge.r()), double(edge.g()), double(edge.b())};
}

/// Contrast by WCAG 2.1: the relative luminances, each plus 0.05.
double contrast(const landscape::Rgb &one, const landscape::Rgb &other)
{
    const auto luminance = [](const landscape::Rgb &rgb) {
        const Light light = lightOf(rgb);
        return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2] + 0.05;
    };
    const auto [least, most] = std::minmax({luminance(one), luminance(other)});
    return most / least;
}

/// CIE L*a*b* under D65 of what an eye sees.
Light labOf(const Light &light, const Matrix &eye)
{
    Light seen{};
    for (std::size_t i = 0; i < 3; ++i)
        seen[i] = std::clamp(eye[i][0] * light[0] + eye[i][1] * light[1] + eye[i][2] * light[2],
                             0.0, 1.0);
    const auto root = [](double share) {
        return share > 0.008856 ? std::cbrt(share) : 7.787 * share + 16.0 / 116;
    };
    const double x =
        root((0.4124564 * seen[0] + 0.3575761 * seen[1] + 0.1804375 * seen[2]) / 0.95047);
    const double y = root(0.2126729 * seen[0] + 0.7151522 * seen[1] + 0.0721750 * seen[2]);
    const double z =
        root((0.0193339 * seen[0] + 0.1191920 * seen[1] + 0.9503041 * seen[2]) / 1.08883);
    return {116 * y - 16, 500 * (x - y), 200 * (y - z)};
}

/// Distance in CIE L*a*b* of the two colors that are most alike.
double leastDistance(const std::vector<landscape::Rgb> &colors, const Matrix &eye)
{
    double least = 1000;
    for (std::size_t i = 0; i < colors.size(); ++i) {
        for (std::size_t other = 0; other < i; ++other) {
            const Light one = labOf(lightOf(colors[i]), eye);
            const Light two = labOf(lightOf(colors[other]), eye);
            least = std::min(least, std::hypot(one[0] - two[0], one[1] - two[1], one[2] - two[2]));
        }
    }
    return least;
}

QList<sites::SectorColorSet> sectorSets()
{
    return sites::loadSectorColorSets(QStringLiteral(VLT_INSTALLATION), u"en"_s);
}

std::vector<landscape::Rgb> clearanceColors()
{
    std::vector<landscape::Rgb> colors;
    for (const linkpath::ClearanceStatus status :
         {linkpath::ClearanceStatus::Clear, linkpath::ClearanceStatus::Marginal,
          linkpath::ClearanceStatus::Obstructed}) {
        const auto rgb = linkpath::clearanceColor(status);
        colors.push_back({double(rgb[0]), double(rgb[1]), double(rgb[2])});
    }
    return colors;
}

std::vector<landscape::Rgb> backgrounds()
{
    std::vector<landscape::Rgb> tints(landscape::Earth.begin(), landscape::Earth.end());
    tints.insert(tints.end(), {landscape::Water, landscape::PlainGround, landscape::UnknownGround,
                               landscape::Haze});
    for (const landscape::SkyBand &band : landscape::SkyBands)
        tints.push_back(band.rgb);
    return tints;
}

} // namespace

class tst_SceneColors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void standsOutFromTheLandscape()
    {
        std::vector<landscape::Rgb> drawn = clearanceColors();
        drawn.push_back(rgbOf(QColor(QLatin1String(contract::query::FirstLinkColor))));
        drawn.push_back(rgbOf(QColor(QLatin1String(contract::query::FirstFresnelColor))));
        QVERIFY(sectorSets().size() >= 7);
        for (const sites::SectorColorSet &set : sectorSets()) {
            for (const QColor &color : set.colors)
                drawn.push_back(rgbOf(color));
        }
        for (const landscape::Rgb &rgb : drawn) {
            for (const landscape::Rgb &tint : backgrounds()) {
                const double reached = std::max(contrast(rgb, tint), contrast(edgeOf(rgb), tint));
                QVERIFY2(reached >= LeastContrast,
                         qPrintable(u"%1 of %2 %3 %4 over %5 %6 %7"_s.arg(reached)
                                        .arg(rgb[0])
                                        .arg(rgb[1])
                                        .arg(rgb[2])
                                        .arg(tint[0])
                                        .arg(tint[1])
                                        .arg(tint[2])));
            }
        }
    }

    void differsToEveryEye_data()
    {
        // least: distances of CIE L*a*b*; 2.3 can just be noticed side by side
        const Cases<bool, double> row({"isVerdict", "least"});
        row("sectors, color-blind safe", false, 15);
        row("clearances", true, 25);
    }
    void differsToEveryEye()
    {
        QFETCH(bool, isVerdict);
        QFETCH(double, least);
        std::vector<landscape::Rgb> colors;
        if (isVerdict)
            colors = clearanceColors();
        for (const sites::SectorColorSet &set : sectorSets()) {
            if (isVerdict || set.description != u"Color-blind safe"_s)
                continue;
            for (const QColor &color : set.colors)
                colors.push_back(rgbOf(color));
        }
        QVERIFY(colors.size() >= 3);
        for (const auto &[name, eye] :
             {std::pair{"normal", Normal}, std::pair{"protanopia", Protanopia},
              std::pair{"deuteranopia", Deuteranopia}, std::pair{"tritanopia", Tritanopia}}) {
            const double distance = leastDistance(colors, eye);
            QVERIFY2(distance >= least,
                     qPrintable(u"%1: %2"_s.arg(QLatin1String(name)).arg(distance)));
        }
    }
};

QTEST_APPLESS_MAIN(tst_SceneColors)
#include "tst_SceneColors.moc"
