#pragma once

#include "batch/BuildingsRequest.h"

namespace vlt::batch {

/// The images of the command line, all of them in use.
///
/// @param quiet  without a progress line on the terminal
/// @par Errors   in the language in use, with the file that cannot be used
Result<QList<buildings::FileEntry>> readTextures(const TextureChoice &choice, bool quiet);

} // namespace vlt::batch
