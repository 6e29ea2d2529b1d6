#pragma once

#include <osg/Group>
#include <osgDB/ReaderWriter>

#include <functional>
#include <string>
#include <vector>

namespace vlt::scene {

/// How programs that list the readers' options tell of the project file.
inline constexpr char ProjectOption[] = "project=<file>";
inline constexpr char ProjectOptionText[] =
    "The project file that the layer belongs to: relative paths start from its folder";

/// What a caller of a layer reader asks for.
struct ReadRequest
{
    /// The project file that the caller names: the plug-in datum contract::ProjectDatum, or what
    /// follows "project=" in the option string, in quotation marks or up to its end.
    std::string project;
    bool withTerrain = false;             ///< the plug-in datum contract::TerrainDatum is "1"
    bool isOnlyDrawn = false;             ///< the plug-in datum contract::DrawnDatum is "1"
    std::function<bool(double)> progress; ///< calls the datum contract::ProgressDatum, if any
};

ReadRequest readRequestOf(const osgDB::Options *options);

/// Reads a local file with the extension of a reader.
///
/// @param name  as the caller has it; looked for where the scene library looks for files
/// @param read  makes the scene of the path that was found and adds notices; what it throws is the
///              reader's message, after the path; where the caller stopped it,
///              contract::StoppedText
osgDB::ReaderWriter::ReadResult readLocalScene(
    const std::string &name, const osgDB::Options *options,
    const std::function<osg::ref_ptr<osg::Group>(const std::string &path, const ReadRequest &,
                                                 std::vector<std::string> &notices)> &read);

} // namespace vlt::scene
