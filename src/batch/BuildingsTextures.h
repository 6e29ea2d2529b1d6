#pragma once

#include "batch/BuildingsRequest.h"

namespace vlt::batch {

/// The images that the command line names, all of them used.
///
/// @param quiet  without a line on the terminal about the search
/// @par Errors   in the language in use, with the file that cannot be used
Result<QList<buildings::FileEntry>> readTextures(const TextureChoice &choice, bool quiet);

} // namespace vlt::batch
