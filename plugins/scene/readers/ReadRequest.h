#pragma once

#include <osg/Group>
#include <osgDB/ReaderWriter>

#include <functional>
#include <string>
#include <vector>

namespace vlt::scene {

/// The option for the project file, for programs that list the options of readers.
inline constexpr char ProjectOption[] = "project=<file>";
inline constexpr char ProjectOptionText[] =
    "The project file that the layer belongs to: relative paths start from its folder";

/// The options that a caller passes to a reader.
struct ReadRequest
{
    /// The project file: the plug-in datum contract::ProjectDatum, or the text after "project=" in
    /// the option string, in quotation marks or up to the end.
    std::string project;
    std::string terrain;                  ///< the plug-in datum contract::TerrainDatum
    bool isOnlyDrawn = false;             ///< the plug-in datum contract::DrawnDatum is "1"
    std::function<bool(double)> progress; ///< calls the datum contract::ProgressDatum, if any
};

ReadRequest readRequestOf(const osgDB::Options *options);

/// Reads a local file with the extension of a reader.
///
/// @param name  searched for in the folders of the scene library
/// @param read  makes the scene for the path that was found and adds notices. The text of an
///              exception becomes the reader's message, after the path; if the caller stopped the
///              reader, the message is contract::StoppedText
osgDB::ReaderWriter::ReadResult readLocalScene(
    const std::string &name, const osgDB::Options *options,
    const std::function<osg::ref_ptr<osg::Group>(const std::string &path, const ReadRequest &,
                                                 std::vector<std::string> &notices)> &read);

} // namespace vlt::scene
