#include "contract/ReaderOptions.h"
#include "snapshot/SceneSource.h"
#include "support/Files.h"

#include <QList>
#include <QTemporaryDir>
#include <QTest>

#include <osg/Group>
#include <osgDB/FileNameUtils>
#include <osgDB/Registry>

using namespace Qt::StringLiterals;

namespace {

/// Reads files of its own suffix as a scene. It reports progress in quarters; the scene's
/// description has the reader's options.
class ProbeReader : public osgDB::ReaderWriter
{
public:
    ProbeReader() { supportsExtension("vltprobe", "probe"); }

    ReadResult readNode(const std::string &name, const Options *options) const override
    {
        if (!acceptsExtension(osgDB::getLowerCaseFileExtension(name)))
            return ReadResult::FILE_NOT_HANDLED;
        const auto *progress = static_cast<const vlt::contract::ReadProgress *>(
            options->getPluginData(vlt::contract::ProgressDatum));
        for (int quarter = 1; progress && quarter <= 4; ++quarter) {
            if (!progress->report(progress->context, quarter / 4.))
                return ReadResult(std::string(vlt::contract::StoppedText));
        }
        osg::ref_ptr<osg::Group> scene = new osg::Group;
        scene->addDescription(options->getPluginStringData(vlt::contract::ProjectDatum));
        scene->addDescription(options->getPluginStringData(vlt::contract::TerrainDatum));
        return scene.get();
    }
};

} // namespace

class tst_SceneSource : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_scene = m_dir.filePath(u"a.vltprobe"_s);
    osg::ref_ptr<ProbeReader> m_reader = new ProbeReader;

private Q_SLOTS:
    void initTestCase()
    {
        writeFile(m_scene);
        osgDB::Registry::instance()->addReaderWriter(m_reader);
    }

    void cleanupTestCase() { osgDB::Registry::instance()->removeReaderWriter(m_reader); }

    void handsProjectAndTerrainToTheReader()
    {
        const auto read =
            vlt::snapshot::readScene(m_scene, u"/project/a.gvw"_s, u"/project/t.tif"_s);

        QVERIFY(read);
        QCOMPARE(read.value()->getDescription(0), std::string("/project/a.gvw"));
        QCOMPARE(read.value()->getDescription(1), std::string("/project/t.tif"));
    }

    void reportsHowFarTheReaderIsAndStopsIt()
    {
        QList<double> shares;

        const auto read = vlt::snapshot::readScene(m_scene, {}, {}, [&shares](double share) {
            shares += share;
            return true;
        });

        QVERIFY(read && *read);
        QCOMPARE(shares, (QList<double>{0.25, 0.5, 0.75, 1}));
        QVERIFY(
            !vlt::snapshot::readScene(m_scene, {}, {}, [](double share) { return share < 0.5; }));
    }
};

QTEST_GUILESS_MAIN(tst_SceneSource)
#include "tst_SceneSource.moc"
