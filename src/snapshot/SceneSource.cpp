#include "snapshot/SceneSource.h"

#include "contract/Installation.h"
#include "contract/ParametricKeys.h"
#include "contract/ReaderOptions.h"
#include "contract/SceneFactKeys.h"
#include "contract/SceneNames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <osg/ValueObject>
#include <osg/Version>
#include <osgDB/FileNameUtils>
#include <osgDB/ReadFile>
#include <osgDB/Registry>

namespace vlt::snapshot {

namespace {

using ReadResult = osgDB::ReaderWriter::ReadResult;

/// Keeps readers from following a scene's references to other computers.
class LocalFilesOnly : public osgDB::ReadFileCallback
{
public:
    ReadResult openArchive(const std::string &name, osgDB::ReaderWriter::ArchiveStatus status,
                           unsigned int blockSizeHint, const osgDB::Options *options) override
    {
        return isRemote(name)
                   ? refusal()
                   : osgDB::ReadFileCallback::openArchive(name, status, blockSizeHint, options);
    }
    ReadResult readObject(const std::string &name, const osgDB::Options *options) override
    {
        return isRemote(name) ? refusal() : osgDB::ReadFileCallback::readObject(name, options);
    }
    ReadResult readImage(const std::string &name, const osgDB::Options *options) override
    {
        return isRemote(name) ? refusal() : osgDB::ReadFileCallback::readImage(name, options);
    }
    ReadResult readNode(const std::string &name, const osgDB::Options *options) override
    {
        return isRemote(name) ? refusal() : osgDB::ReadFileCallback::readNode(name, options);
    }
    ReadResult readShader(const std::string &name, const osgDB::Options *options) override
    {
        return isRemote(name) ? refusal() : osgDB::ReadFileCallback::readShader(name, options);
    }

private:
    static bool isRemote(const std::string &name) { return osgDB::containsServerAddress(name); }
    static ReadResult refusal() { return {"only local files are read"}; }
};

bool report(void *progress, double share)
{
    return (*static_cast<const Progress *>(progress))(share);
}

/// The reader's message without the file's name, which the error has as its path.
Error asError(ReadResult &read, const std::string &source, const QString &name)
{
    if (read.status() == ReadResult::FILE_NOT_HANDLED || read.message().empty())
        return {QStringLiteral("MESS_SNAP_UNREADABLE"),
                QStringLiteral("it cannot be read as a scene"), name};
    std::string text = read.message();
    if (const std::string file = source + ": "; text.starts_with(file))
        text.erase(0, file.size());
    return Error::fromLibrary(QString::fromStdString(text), name);
}

} // namespace

std::optional<QString> sceneFact(const osg::Node &scene, const char *key)
{
    const std::string mark = key + std::string("=");
    for (const std::string &line : scene.getDescriptions()) {
        if (line.starts_with(mark))
            return QString::fromStdString(line.substr(mark.size()));
    }
    return std::nullopt;
}

std::optional<osg::BoundingBox> coreOf(const osg::Node &scene)
{
    const QStringList limits =
        sceneFact(scene, contract::facts::Core).value_or(QString()).split(QLatin1Char(' '));
    if (limits.size() != 4)
        return std::nullopt;
    return osg::BoundingBox(limits[0].toFloat(), limits[1].toFloat(), 0, limits[2].toFloat(),
                            limits[3].toFloat(), 0);
}

void showNames(osg::Node &scene, const QString &which)
{
    scene.setUserValue(contract::names::Shown, which.toStdString());
}

bool isParametricName(const QString &name)
{
    return name.startsWith(QLatin1String(contract::parametric::Start));
}

Result<Scene> readScene(const QString &name, const QString &project, const QString &terrain)
{
    return readScene(name, project, terrain, {}).value();
}

Stoppable<Scene> readScene(const QString &name, const QString &project, const QString &terrain,
                           const Progress &progress)
{
    QString source = name;
    if (!isParametricName(name)) {
        const QFileInfo file(name);
        if (name.contains(QLatin1String("://")))
            return Error{QStringLiteral("MESS_SNAP_NOT_LOCAL"),
                         QStringLiteral("only local files are read"), name};
        if (!file.isFile())
            return Error{QStringLiteral("MESS_SNAP_NO_FILE"), QStringLiteral("no such file"), name};
        source = file.absoluteFilePath();
    }

    osgDB::Registry *registry = osgDB::Registry::instance();
    const osg::ref_ptr<osgDB::Options> options =
        registry->getOptions() ? registry->getOptions()->cloneOptions() : new osgDB::Options;
    options->setReadFileCallback(new LocalFilesOnly);
    if (!registry->getReadFileCallback()) // for parts that a scene loads while it is drawn
        registry->setReadFileCallback(new LocalFilesOnly);
    if (!project.isEmpty())
        options->setPluginStringData(
            contract::ProjectDatum,
            QFile::encodeName(QFileInfo(project).absoluteFilePath()).toStdString());
    if (!terrain.isEmpty())
        options->setPluginStringData(contract::TerrainDatum,
                                     QFile::encodeName(terrain).toStdString());
    options->setPluginStringData(contract::DrawnDatum, "1");
    Progress reported = progress;
    contract::ReadProgress listener{report, &reported};
    if (reported)
        options->setPluginData(contract::ProgressDatum, &listener);
    const std::string path = QFile::encodeName(source).toStdString();
    ReadResult read = registry->readNode(path, options.get());
    if (read.validNode())
        return Scene(read.getNode());
    if (progress && read.message() == contract::StoppedText)
        return std::nullopt;
    return asError(read, path, name);
}

void addInstalledReaders(const QString &installDir)
{
    osgDB::Registry::instance()->getLibraryFilePathList().push_front(
        QFile::encodeName(QDir(installDir).filePath(QLatin1String(contract::PluginFolder)))
            .toStdString());
}

QString libraryVersion()
{
    return QStringLiteral("OpenSceneGraph ") + QString::fromUtf8(osgGetVersion());
}

} // namespace vlt::snapshot
