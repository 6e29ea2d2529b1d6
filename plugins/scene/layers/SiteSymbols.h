#pragma once

#include "plugins/scene/parametric/PylonObject.h"
#include "plugins/scene/pylon/Sectors.h"

#include <osg/Geometry>
#include <osg/Group>
#include <osg/Program>

#include <vector>

namespace vlt::scene {

/// A site as a symbol.
struct SiteSymbol
{
    osg::Vec3 foot;      ///< metres, relative to the drawable's origin
    double spacingM = 0; ///< mean distance of the sites around; the symbol grows no larger
    double northDeg = 0; ///< direction of azimuth 0, clockwise from the y axis
    const PylonDesign *design = nullptr;
};

/// The sectors that the symbol of a pylon shows: those of dishes are left out.
std::vector<Sector> symbolSectors(const PylonDesign &design);

/// Makes the symbols of distant sites, which have a constant size on the screen: a mast with a
/// colored petal for each sector, which points into the sector's azimuth and has a dark outline. A
/// pylon without sectors, or with dishes only, has a round symbol instead: the end of links.
///
/// The radius is 15 pixels, and that of a sector if it is larger, up to 30 pixels. It is less where
/// sites are near each other, down to 4 pixels (round symbols: 1) without a mast. The graphics card
/// computes all this, so that many sites share a drawable. Ground that is nearer than a site by
/// less than 15 % does not hide its symbol.
class SiteSymbols
{
public:
    SiteSymbols();

    /// A drawable for any number of symbols.
    ///
    /// @param padM  how much larger the bound is than the feet, because small objects are culled
    osg::ref_ptr<osg::Geometry> build(const std::vector<SiteSymbol> &symbols, double padM) const;

    /// Prepares the top of a scene, whose symbols need the size of the picture and of sectors.
    static void prepare(osg::Group &scene, double sectorRadiusM);

    /// A node that shows symbols only where sectors are smaller than a few pixels.
    static osg::ref_ptr<osg::Group> whereSectorsAreSmall(osg::Node *symbols);

private:
    osg::ref_ptr<osg::StateSet> m_state;
};

} // namespace vlt::scene
