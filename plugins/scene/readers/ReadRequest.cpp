#include "plugins/scene/readers/ReadRequest.h"

#include "contract/ReaderOptions.h"
#include "plugins/scene/reading/Stopped.h"

#include <osg/Notify>
#include <osgDB/FileNameUtils>
#include <osgDB/FileUtils>

namespace vlt::scene {

namespace {

using ReadResult = osgDB::ReaderWriter::ReadResult;

std::string projectOf(const osgDB::Options &options)
{
    std::string datum = options.getPluginStringData(contract::ProjectDatum);
    if (!datum.empty())
        return datum;
    constexpr std::string_view Key = "project=";
    const std::string &text = options.getOptionString();
    const std::size_t at = text.find(Key);
    if (at == std::string::npos)
        return {};
    const std::string value = text.substr(at + Key.size());
    return value.starts_with('"') ? value.substr(1, value.find('"', 1) - 1) : value;
}

void reportScene(const std::string &path, const std::vector<std::string> &notices,
                 const std::vector<std::string> &facts)
{
    for (const std::string &notice : notices)
        OSG_WARN << path << ": " << notice << std::endl;
    OSG_INFO << path << ':';
    for (const std::string &fact : facts)
        OSG_INFO << ' ' << fact;
    OSG_INFO << std::endl;
}

} // namespace

ReadRequest readRequestOf(const osgDB::Options *options)
{
    ReadRequest request;
    request.progress = [](double) { return true; };
    if (!options)
        return request;
    request.project = projectOf(*options);
    request.terrain = options->getPluginStringData(contract::TerrainDatum);
    request.isOnlyDrawn = options->getPluginStringData(contract::DrawnDatum) == "1";
    const auto *progress = static_cast<const contract::ReadProgress *>(
        options->getPluginData(contract::ProgressDatum));
    if (progress && progress->report)
        request.progress = [progress](double share) {
            return progress->report(progress->context, share);
        };
    return request;
}

ReadResult readLocalScene(
    const std::string &name, const osgDB::Options *options,
    const std::function<osg::ref_ptr<osg::Group>(const std::string &, const ReadRequest &,
                                                 std::vector<std::string> &)> &read)
{
    const std::string path =
        osgDB::containsServerAddress(name) ? "" : osgDB::findDataFile(name, options);
    if (path.empty())
        return ReadResult::FILE_NOT_FOUND;
    try {
        std::vector<std::string> notices;
        const osg::ref_ptr<osg::Group> scene = read(path, readRequestOf(options), notices);
        reportScene(path, notices, scene->getDescriptions());
        return scene.get();
    } catch (const Stopped &) {
        return ReadResult(contract::StoppedText);
    } catch (const std::exception &fault) { // BadLayer, BadQuery, or out of memory
        return ReadResult(path + ": " + fault.what());
    }
}

} // namespace vlt::scene
