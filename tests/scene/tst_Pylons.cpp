#include "PylonTesting.h"

#include "plugins/scene/pylon/PylonFactory.h"
#include "support/Cases.h"

#include <osg/ComputeBoundsVisitor>
#include <osg/Geometry>
#include <osg/LOD>
#include <osg/MatrixTransform>
#include <osgDB/FileNameUtils>
#include <osgDB/ReadFile>
#include <osgDB/Registry>
#include <osgUtil/Optimizer>

#include <algorithm>
#include <cmath>

using namespace pylontest;

namespace {

/// Counts the nodes that a visit of all children reaches.
struct Counter : osg::NodeVisitor
{
    explicit Counter(VisitorType type = NODE_VISITOR)
        : osg::NodeVisitor(type, TRAVERSE_ALL_CHILDREN)
    {}
    void apply(osg::Geometry &geometry) override
    {
        ++drawables;
        vertices += geometry.getVertexArray()->getNumElements();
        lists += geometry.getUseDisplayList() ? 1 : 0;
    }
    std::size_t drawables = 0;
    std::size_t vertices = 0;
    int lists = 0;
};

Counter counted(osg::Node &node)
{
    Counter counter;
    node.accept(counter);
    return counter;
}

/// Collects the notices of the scene library.
struct Listener : osg::NotifyHandler
{
    void notify(osg::NotifySeverity, const char *message) override { text += message; }
    std::string text;
};

} // namespace

class tst_Pylons : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensTheDemonstrationThroughTheLoader()
    {
        const osg::ref_ptr<osg::Node> node =
            osgDB::readRefNodeFile(replaced(Demonstration, "=0 0 0 25", "=652000.25 6.8e6 35 25"));

        QVERIFY(node);
        auto *place = node->asTransform()->asMatrixTransform();
        QCOMPARE(place->getMatrix().getTrans(), osg::Vec3d(652000.25, 6.8e6, 35));
        const auto *levels = dynamic_cast<const osg::LOD *>(place->getChild(0));
        QVERIFY(levels && levels->getNumChildren() == 2);
        QCOMPARE(levels->getCenter(), osg::LOD::vec_type(0, 0, 12.5));
        QCOMPARE(levels->getMinRange(0), 0.F);
        QCOMPARE(levels->getMaxRange(0), 1000.F);
        QCOMPARE(levels->getMinRange(1), 1000.F);
        QCOMPARE(levels->getMaxRange(1), 10000.F);
        // upper wedges: 52 m high; 200 m to the north
        osg::ComputeBoundsVisitor bounds;
        place->getChild(0)->accept(bounds);
        QVERIFY(std::abs(bounds.getBoundingBox().zMax() - 52) < 0.01);
        QVERIFY(std::abs(bounds.getBoundingBox().yMax() - 200) < 0.01);
    }

    void leavesOtherNamesToOthers()
    {
        osgDB::ReaderWriter *reader =
            osgDB::Registry::instance()->getReaderWriterForExtension("inlinepylonurl");
        QVERIFY(reader);
        QVERIFY(reader->readNode(Demonstration + ".osgt", nullptr).notHandled());
        QVERIFY(!osgDB::containsServerAddress(Demonstration));
    }

    void reportsARefusalOnce()
    {
        const osg::ref_ptr<osg::NotifyHandler> before = osg::getNotifyHandler();
        const osg::ref_ptr<Listener> listener = new Listener;
        osg::setNotifyHandler(listener);
        const osg::ref_ptr<osg::Node> node =
            osgDB::readRefNodeFile(replaced(Demonstration, "=100&lod", "=1e4&lod"));
        osg::setNotifyHandler(before);

        QVERIFY(!node);
        const std::string reported = "transmitter_scale: the scale \"1e4\" is not within 0 to 1000";
        const std::size_t at = listener->text.find(reported);
        QVERIFY2(at != std::string::npos, listener->text.c_str());
        QCOMPARE(listener->text.find(reported, at + 1), std::string::npos);
    }

    void readsTheRecord()
    {
        const PylonDesign design = demonstration("wood_panel");

        QCOMPARE(design.type, PylonType::WoodPanel);
        QCOMPARE(design.heightM, 25.0);
        QCOMPARE(design.widthM, 2.5);
        QCOMPARE(design.sectorRadiusM, 200.0);
        QCOMPARE(design.sectorHeightM, 20.0);
        QCOMPARE(design.sectorSpacingM, 2.0);
        QCOMPARE(design.antennaScale, 1.0);
        QCOMPARE(design.transmitters.size(), std::size_t{6});
        QCOMPARE(design.transmitters[2].azimuthDeg, 240.0);
        QCOMPARE(design.transmitters[2].tiltDeg, -5.0);
        QCOMPARE(design.transmitters[4].heightM, 20.0);
        QCOMPARE(design.transmitters[4].tiltDeg, 5.0);
        QVERIFY(design.transmitters[2].color == Color(255, 0, 0, 128));
    }

    void refusesWhatCannotBeDrawn_data()
    {
        addRefusals({
            {"inline://parametric/query?", "/tmp/", "is not a query"},
            {"object=pylon&", "", "object is missing"},
            {"object=pylon", "object=tree", "object: the kind \"tree\" is unknown"},
            {"object=pylon", "object=pylon&object=pylon", "object is given more than once"},
            {"&pylon_type=monopole_panel", "", "pylon_type is missing"},
            {"monopole_panel", "tripod", "pylon_type: the type \"tripod\" is unknown"},
            {"object=pylon", "object=pylon&colour=red", "the item \"colour=red\" is unknown"},
            {"&lod=10000 1000", "", "lod is missing"},
            {"&lod=", "&lod=1 1&lod=", "lod is given more than once"},
            {"lod=10000 1000", "lod=10000", "lod: \"10000\" is not \"SYMBOLIC REALISTIC\""},
            {"=10000 1000", "=-1 1000", "the symbolic distance \"-1\""},
            {"=10000 1000", "=1000 inf", "the realistic distance \"inf\" is not a number"},
            {"=0 0 0 25", "=0 0 25", "pylon: \"0 0 25 2.5 200 20 2\" is not"},
            {"=0 0 0 25", "=0 0 0 1e999", "the height \"1e999\" is not within"},
            {"=0 0 0 25", "=0 0 0 0", "the height \"0\""},
            {"=0 0 0 25", "=0 nan 0 25", "the y \"nan\" is not a number"},
            {"2.5 200 20 2", "2,5 200 20 2", "the width \"2,5\" is not a number"},
            {"2.5 200 20 2", "2.5 -200 20 2", "the sector radius \"-200\""},
            {"2.5 200 20 2", "2.5 200 20 -2", "the sector spacing \"-2\""},
            {"=23 120 0", "=-23 120 0", "transmitter 2: the height \"-23\""},
            {"=23 120 0", "=23 1200 0", "transmitter 2: the azimuth \"1200\""},
            {"=23 240 -5", "=23 240 -95", "transmitter 3: the tilt \"-95\""},
            {"=23 240 -5", "=23 240 --5", "transmitter 3: the tilt \"--5\" is not a number"},
            {"+5 0 0", "+5 361 0", "transmitter 5: the beam width \"361\""},
            {"+5 0 0", "+5 0 31", "transmitter 5: the antenna length \"31\""},
            {"00ff00ff", "00ff00", "transmitter 2: the color \"00ff00\" is not rrggbbaa"},
            {"00ff00ff", "00ff00+f", "the color \"00ff00+f\" is not rrggbbaa"},
        });
    }
    void refusesWhatCannotBeDrawn() { compareRefusal(Demonstration, parsePylonQuery); }

    void keepsToTheVertexBudget_data() { addTypes(); }
    void keepsToTheVertexBudget()
    {
        QFETCH(QByteArray, type);
        PylonDesign design = demonstration(type.constData());
        const Counter ordinary = counted(*PylonFactory().design(design));
        qInfo("%s: %zu vertices, %zu drawables", type.constData(), ordinary.vertices,
              ordinary.drawables);

        design.heightM = 2000;
        design.transmitters.clear();
        for (std::size_t i = 0; i < MaxTransmitters; ++i)
            design.transmitters.push_back(
                {2000.0 * static_cast<double>(i) / MaxTransmitters, static_cast<double>(i % 360), 0,
                 360, 30, Color(9, 9, 9, 9), i % 2 ? AntennaKind::Dish : AntennaKind::Default});
        const Counter worst = counted(*PylonFactory().design(design));

        QVERIFY(ordinary.vertices > 2000 && ordinary.vertices < 25000);
        QVERIFY(ordinary.drawables <= 4 + 6 + 3);
        QVERIFY2(worst.vertices <= MaxPylonVertices, qPrintable(QString::number(worst.vertices)));
        QCOMPARE(ordinary.lists + worst.lists, 0);
    }

    void sharesWhatIsEqual()
    {
        PylonFactory factory(PreciseModel::WhenNeeded);
        const PylonDesign design = demonstration("lattice_panel");
        PylonDesign other = design;
        other.transmitters[0].azimuthDeg = 1;
        const auto below = [&](const osg::Vec3d &foot, const PylonDesign &pylon) {
            return osg::ref_ptr<osg::Node>(factory.build({foot, pylon})->asGroup()->getChild(0));
        };

        const osg::ref_ptr<osg::Node> first = below({1, 2, 3}, design);
        const osg::ref_ptr<osg::Node> second = below({7, 8, 9}, other);

        QCOMPARE(below({4, 5, 6}, design).get(), first.get());
        QVERIFY(first != second);
        // The first drawing adds the precise representation and does not change the bound.
        const osg::BoundingSphere before = first->getBound();
        const std::size_t symbolic = counted(*first).drawables;
        Counter drawing(osg::NodeVisitor::CULL_VISITOR);
        first->accept(drawing);
        QCOMPARE(drawing.drawables, symbolic + 4);
        QCOMPARE(counted(*first).drawables, symbolic + 4);
        QCOMPARE(first->getBound().radius(), before.radius());
        osg::ComputeBoundsVisitor bounds;
        factory.precise(design)->accept(bounds);
        for (unsigned corner = 0; corner < 8; ++corner) {
            const auto *levels = first->asGroup();
            QVERIFY(
                levels->getChild(0)->getBound().contains(bounds.getBoundingBox().corner(corner)));
        }
    }

    void survivesOptimisers_data()
    {
        // translucent: drawables of translucent parts, which are sorted
        const Cases<int, int> row({"opacity", "translucent"});
        row("translucent", 128, 6);
        row("opaque", 255, 0);
    }
    void survivesOptimisers()
    {
        QFETCH(int, opacity);
        PylonDesign design = demonstration("wood_panel");
        for (Transmitter &transmitter : design.transmitters)
            transmitter.color.a() = static_cast<unsigned char>(opacity);
        const osg::ref_ptr<osg::Group> node = new osg::Group;
        node->addChild(PylonFactory().build({osg::Vec3d(652000.25, 6.8e6, 35), design}));

        osgUtil::Optimizer().optimize(node);

        struct : osg::NodeVisitor
        {
            void apply(osg::Geometry &geometry) override
            {
                const osg::StateSet *state = geometry.getStateSet();
                sorted += state && state->getRenderingHint() == osg::StateSet::TRANSPARENT_BIN;
                farthest = std::max(farthest, geometry.getBoundingBox().xMax());
            }
            int sorted = 0;
            float farthest = 0;
        } found;
        found.setTraversalMode(osg::NodeVisitor::TRAVERSE_ALL_CHILDREN);
        node->accept(found);
        QTEST(found.sorted, "translucent");
        QVERIFY(found.farthest < 201); // large coordinates stay in the transform
    }

    void leavesOutWhatIsInvisible()
    {
        PylonDesign design = demonstration("wood_panel");
        const std::size_t all = counted(*PylonFactory().design(design)).drawables;
        design.transmitters[0].color.a() = 0;
        QCOMPARE(counted(*PylonFactory().design(design)).drawables, all - 1);
        design.antennaScale = 0;
        QCOMPARE(counted(*PylonFactory().design(design)).drawables, all - 3);
    }
};

QTEST_APPLESS_MAIN(tst_Pylons)
#include "tst_Pylons.moc"
