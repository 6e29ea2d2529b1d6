#include "plugins/scene/pylon/WaterTowerShape.h"

#include <algorithm>
#include <cmath>

namespace vlt::scene {

Profile waterTowerWall(const MastDesign &mast)
{
    const double shaft = mast.widthM / 2;
    const double tank = 3 * shaft;
    const double gallery = mast.decksM.front();
    const double wallFoot = waterTowerTankFoot(mast);
    const double flareFoot = std::max(0.5 * gallery, wallFoot - 1.3 * tank);
    Profile wall = {{shaft * 1.12, 0}, {shaft, 0.04 * gallery}};
    constexpr int Steps = 7; // from the shaft to the tank the wall is a quarter of an ellipse
    for (int i = 0; i <= Steps; ++i) {
        const double angle = osg::PI_2 * 0.94 * i / Steps;
        const double out = 1 - std::cos(angle);
        wall.emplace_back(shaft + (tank - shaft) * out / (1 - std::cos(osg::PI_2 * 0.94)),
                          flareFoot + (wallFoot - flareFoot) * std::sin(angle) /
                                          std::sin(osg::PI_2 * 0.94));
    }
    wall.emplace_back(tank, gallery);
    return wall;
}

Profile waterTowerRoof(const MastDesign &mast)
{
    const double tank = 1.5 * mast.widthM;
    const double gallery = mast.decksM.front();
    const double room = mast.heightM - gallery;
    const double lantern = 0.28 * tank;
    return {{tank, gallery},
            {0.97 * tank, gallery + 0.06 * room},
            {lantern, gallery + 0.45 * room},
            {lantern, gallery + 0.85 * room},
            {1.12 * lantern, gallery + 0.86 * room},
            {1.12 * lantern, gallery + 0.9 * room},
            {0, mast.heightM}};
}

double waterTowerTankFoot(const MastDesign &mast)
{
    const double gallery = mast.decksM.front();
    return std::max(0.72 * gallery, gallery - 3 * mast.widthM); // height <= width of the tank
}

double waterTowerRadius(const MastDesign &mast, double heightM)
{
    Profile outline = waterTowerWall(mast);
    const Profile roof = waterTowerRoof(mast);
    outline.insert(outline.end(), roof.begin(), roof.end());
    for (std::size_t i = 1; i < outline.size(); ++i) {
        const osg::Vec2d &low = outline[i - 1];
        const osg::Vec2d &high = outline[i];
        if (heightM <= high.y() && high.y() > low.y())
            return low.x() +
                   (high.x() - low.x()) * std::max(0.0, heightM - low.y()) / (high.y() - low.y());
    }
    return 0;
}

} // namespace vlt::scene
