#include "plugins/scene/pylon/MastDesign.h"

#include <algorithm>
#include <cmath>

namespace vlt::scene {

namespace {

constexpr double BelowAntennaM = 0.1; ///< from a floor to the lowest antenna above it
constexpr double HeadroomM = 2.2;     ///< minimum between two floors
constexpr double MinDeckHeightM = 3;  ///< below this height no platform is needed
constexpr double ParapetM = 1;        ///< from a roof to the lowest antenna on it
constexpr std::size_t MaxDecks = 24;
constexpr std::size_t MaxFrames = 128;

double centimetres(double metres)
{
    return std::round(metres * 100) / 100;
}

std::vector<double> floorHeights(const std::vector<double> &antennaBottoms)
{
    std::vector<double> decks;
    for (const double bottom : antennaBottoms) {
        const double deck = centimetres(bottom - BelowAntennaM);
        if (deck >= MinDeckHeightM && (decks.empty() || deck >= decks.back() + HeadroomM))
            decks.push_back(deck);
    }
    if (decks.size() > MaxDecks)
        decks.erase(decks.begin(), decks.end() - MaxDecks);
    return decks;
}

/// Height of the gallery of a water tower, which is at the top of its wall.
double galleryHeight(double towerHeight)
{
    return centimetres(std::max(0.86 * towerHeight, towerHeight - 5));
}

} // namespace

bool hasPlatforms(PylonType type)
{
    return type == PylonType::MonopolePanel || type == PylonType::MonopoleCylinder ||
           type == PylonType::LatticePanel;
}

bool isRooftop(PylonType type)
{
    return type == PylonType::RooftopPanel || type == PylonType::RooftopCylinder;
}

bool isLattice(PylonType type)
{
    return type == PylonType::LatticePanel || type == PylonType::LatticeCylinder ||
           type == PylonType::GuyedPanel;
}

bool hasCylindricalAntennas(PylonType type)
{
    return type == PylonType::MonopoleCylinder || type == PylonType::MonopoleSlim ||
           type == PylonType::LatticeCylinder || type == PylonType::RooftopCylinder;
}

AntennaSize antennaSize(const PylonDesign &pylon, const Transmitter &transmitter)
{
    const bool isDish = transmitter.kind == AntennaKind::Dish;
    const double defaultLengthM = isDish ? DefaultDishDiameterM : DefaultAntennaLengthM;
    const double length =
        (transmitter.antennaLengthM > 0 ? transmitter.antennaLengthM : defaultLengthM) *
        pylon.antennaScale;
    if (isDish)
        return {length, length, DishDepth * length};
    const bool round = hasCylindricalAntennas(pylon.type);
    return {length, (round ? 0.22 : 0.3) * pylon.antennaScale,
            (round ? 0.22 : 0.15) * pylon.antennaScale};
}

double bracketOffset(const AntennaSize &size)
{
    return 0.36 * size.length;
}

MastDesign mastDesign(const PylonDesign &pylon)
{
    MastDesign mast;
    mast.type = pylon.type;
    mast.heightM = pylon.heightM;
    mast.widthM = pylon.widthM;
    std::vector<double> bottoms;
    for (const Transmitter &transmitter : pylon.transmitters) {
        const AntennaSize size = antennaSize(pylon, transmitter);
        mast.heightM = std::max(mast.heightM, transmitter.heightM);
        bottoms.push_back(transmitter.heightM - size.length / 2);
        for (const double offset : {-bracketOffset(size), bracketOffset(size)})
            mast.framesM.push_back(centimetres(transmitter.heightM + offset));
    }
    std::sort(bottoms.begin(), bottoms.end());
    std::sort(mast.framesM.begin(), mast.framesM.end());
    mast.framesM.erase(std::unique(mast.framesM.begin(), mast.framesM.end()), mast.framesM.end());

    if (pylon.antennaScale <= 0)
        bottoms.clear();
    if (pylon.antennaScale <= 0 || !isLattice(pylon.type) || hasPlatforms(pylon.type) ||
        mast.framesM.size() > MaxFrames)
        mast.framesM.clear();
    if (hasPlatforms(pylon.type))
        mast.decksM = floorHeights(bottoms);
    else if (pylon.type == PylonType::WaterTowerPanel)
        mast.decksM = {galleryHeight(mast.heightM)};
    if (isRooftop(pylon.type)) {
        const double defaultM = std::max(0.8 * mast.heightM, mast.heightM - 5);
        const double lowest = bottoms.empty() ? defaultM : bottoms.front() - ParapetM;
        mast.roofM = centimetres(std::max(0.25, std::min(defaultM, lowest)));
    }
    return mast;
}

} // namespace vlt::scene
