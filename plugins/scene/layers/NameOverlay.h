#pragma once

#include "plugins/scene/layers/NameLayout.h"

#include <osg/Geode>
#include <osg/Geometry>
#include <osg/Projection>
#include <osgText/Font>
#include <osgText/Text>

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace vlt::scene {

/// A place with a name.
struct NamedPlace
{
    /// What is drawn at the place.
    enum class Kind {
        Sectors, ///< a mast with sectors, or their symbol
        Mast,    ///< a mast without sectors, or a round symbol
        Line     ///< a link; the place is its middle
    };

    std::string name; ///< UTF-8; a long one is cut
    osg::Vec3d at;    ///< foot of the mast, metres
    Kind kind = Kind::Line;
    double mastM = 0;    ///< height of the mast with all parts
    double sectorsM = 0; ///< height of the top of the sectors
    double spacingM = 0; ///< mean distance of the sites around
};

/// Measures of all sites, in metres.
struct SiteMeasures
{
    double sectorRadiusM = 0;
    double symbolicM = 0;
    double realisticM = 0;
};

/// Names over a scene, for programs that only draw it: the nearest first, without overlaps. Which
/// of them are shown depends on the user value of contract/SceneNames.h. Names are placed again
/// only when the camera has moved. Their size is for the screen, and they have no extent in the
/// scene.
class NameOverlay : public osg::Node
{
public:
    NameOverlay(std::vector<NamedPlace> places, const SiteMeasures &measures);

    void traverse(osg::NodeVisitor &visitor) override;
    osg::BoundingSphere computeBound() const override { return {}; }
    void resizeGLObjectBuffers(unsigned int maxSize) override;
    void releaseGLObjects(osg::State *state) const override;

protected:
    ~NameOverlay() override = default;

private:
    /// What the places of names depend on.
    struct View
    {
        osg::Matrixd modelView;
        osg::Matrixd projection;
        double widthPx = 0;
        double heightPx = 0;
        std::string shown;

        bool operator==(const View &) const = default;
    };
    struct Seen;

    void place(const View &view);
    std::vector<Seen> seenIn(const View &view) const;
    PictureRect takenBy(const NamedPlace &place, const osg::Vec3d &at, const View &view,
                        double pxPerM, double distanceM) const;
    double widthOf(std::size_t place, double sizePx);
    osgText::Text &textOf(std::size_t place);
    void show(const std::vector<Seen> &seen, const std::vector<NamedRoom> &rooms,
              const std::vector<PlacedName> &names);

    std::vector<NamedPlace> m_places;
    SiteMeasures m_measures;
    osg::ref_ptr<osgText::Font> m_font;
    std::map<std::size_t, osg::ref_ptr<osgText::Text>> m_texts; ///< by place
    std::vector<float> m_widths; ///< of the texts by place; 0: unknown
    double m_sizePx = 0;         ///< of the texts
    std::mutex m_guard;          ///< several threads may cull
    View m_view;
    osg::ref_ptr<osg::Projection> m_overlay;
    osg::ref_ptr<osg::Geode> m_drawn;
    osg::ref_ptr<osg::Geometry> m_leaders; ///< lines to names
    osg::ref_ptr<osg::Geometry> m_plates;  ///< pale, behind names
};

} // namespace vlt::scene
