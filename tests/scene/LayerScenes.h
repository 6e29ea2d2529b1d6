#pragma once

#include "support/Files.h"

#include <osg/LOD>
#include <osg/MatrixTransform>
#include <osg/NodeVisitor>
#include <osgDB/ReadFile>
#include <osgDB/Registry>
#include <osgText/Text>

#include <QtTest>

#include <functional>
#include <map>
#include <set>
#include <string>

/// Helpers for the tests of layers.
namespace layertest {

inline const char *const PylonStyle =
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

/// Finds the order in which a reader searches folders for a relative file name. Files of this name,
/// each with one object more, are written to these folders from the last one to the first; the
/// reader counts the objects each time.
///
/// @param layer    path of the existing layer or document that names the file
/// @param content  content of a file with this number of objects
/// @param fact     key of the number of objects
/// @return         "1 2 3 4 4" for the right order: the working directory, the layer's folder, that
///                 of VLT_CURRENT_PROJECT, and twice that of the caller's project
inline QString foundInOrder(const QString &layer, const QString &name,
                            const std::function<QByteArray(int)> &content, const char *fact)
{
    const QDir root(QFileInfo(layer).dir().filePath(QStringLiteral("..")));
    const auto put = [&](const char *folder, int objects) {
        const QString path = QLatin1String(folder) + u'/' + name;
        writeFile(root.filePath(path), content(objects));
    };
    const std::string project = root.filePath(QStringLiteral("p 2/city.gvw")).toStdString();
    const osg::ref_ptr<osgDB::Options> option = new osgDB::Options("project=" + project);
    const osg::ref_ptr<osgDB::Options> datum = new osgDB::Options;
    datum->setPluginStringData("vlt.project", project);
    QStringList found;
    const auto look = [&](const osgDB::Options *options = nullptr) {
        const Opened opened = open(layer, options);
        found << QString::fromStdString(opened.scene ? opened.fact(fact) : opened.fault);
    };
    const QString before = QDir::currentPath();

    put("cwd", 1);
    QDir::setCurrent(root.filePath(QStringLiteral("cwd")));
    look();
    writeFile(QFileInfo(layer).dir().filePath(name), content(2));
    look();
    put("p1", 3);
    qputenv("VLT_CURRENT_PROJECT", root.filePath(QStringLiteral("p1/city.gvw")).toLocal8Bit());
    look();
    put("p 2", 4);
    look(option);
    look(datum);

    qunsetenv("VLT_CURRENT_PROJECT");
    QDir::setCurrent(before);
    return found.join(u' ');
}

/// Visits all nodes that the renderer visits at any distance, so that nodes made on demand exist.
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
        if (!transform.getName().empty()) {
            feet[transform.getName()] = place;
            ahead[transform.getName()] = transform.getMatrix().getRotate() * osg::Vec3d(0, 1, 0);
        }
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
    std::map<std::string, osg::Vec3d> ahead; ///< directions of the y axes of objects
    std::map<std::string, osg::Vec3d> labels;
    std::set<osg::ref_ptr<const osg::Drawable>> drawables;
};

} // namespace layertest
