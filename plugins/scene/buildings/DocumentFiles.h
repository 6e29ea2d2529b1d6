#pragma once

#include "localfiles/LocalFormats.h"

#include <string>

namespace vlt::scene {

using localfiles::locateDataset;

/// The absolute path of the document of a layer. If it is gone, or only in the folder of temporary
/// files, a file of the same name beside the layer takes its place: both may have been copied.
///
/// @param source     of the layer: "TEXB:" and the path of the document
/// @param layer      path of the layer file
/// @throws BadLayer  the source has another form, or there is no such file
std::string locateDocument(const std::string &source, const std::string &layer,
                           const std::string &project);

} // namespace vlt::scene
