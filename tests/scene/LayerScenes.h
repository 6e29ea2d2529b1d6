#pragma once

#include "support/Files.h"

#include <osg/LOD>
#include <osg/MatrixTransform>
#include <osg/NodeVisitor>
#include <osgDB/ReadFile>
#include <osgDB/Registry>
#include <osgText/Text>

#include <QtTest>

#include <map>
#include <set>
#include <string>

/// What the tests of layers share.
namespace layertest {

inline const char *const PylonLook =
    "pylon_type=monopole_panel,pylon_width=2.5,sector_colors=ff0000ff 00ff00ff,"
    "sector_properties=200 20 2,transmitter_scale=100,";

struct Opened
{
    osg::ref_ptr<osg::Group> scene;
    std::string fault;

    std::string fact(const std::string &key) const
    {
        for (const std::string &line : scene->getDescriptions()) {
            if (line.starts_with(key + '='))
                return line.substr(key.size() + 1);
        }
        return "absent";
    }
};

inline Opened open(const QString &path, const osgDB::Options *options = nullptr)
{
    osgDB::ReaderWriter::ReadResult read =
        osgDB::Registry::instance()->readNode(path.toStdString(), options);
    return {read.getNode() ? read.getNode()->asGroup() : nullptr, read.message()};
}

/// Draws nothing, but goes where the renderer would go, at every distance: this makes what is made
/// when it is needed.
struct Everything : osg::NodeVisitor
{
    Everything() : osg::NodeVisitor(CULL_VISITOR, TRAVERSE_ALL_CHILDREN) {}

    using osg::NodeVisitor::apply;

    void apply(osg::LOD &lod) override
    {
        for (unsigned i = 0; i < lod.getNumChildren(); ++i)
            lod.getChild(i)->accept(*this);
    }

    void apply(osg::MatrixTransform &transform) override
    {
        const osg::Vec3d before = place;
        place += transform.getMatrix().getTrans();
        if (!transform.getName().empty())
            feet[transform.getName()] = place;
        traverse(transform);
        place = before;
    }

    void apply(osg::Drawable &drawable) override
    {
        if (const auto *text = dynamic_cast<const osgText::Text *>(&drawable)) {
            labels[text->getName()] = place + text->getPosition();
            return;
        }
        drawables.insert(&drawable);
    }

    osg::Vec3d place;
    std::map<std::string, osg::Vec3d> feet;
    std::map<std::string, osg::Vec3d> labels;
    std::set<osg::ref_ptr<const osg::Drawable>> drawables;
};

} // namespace layertest
