#include "coverage/RasterStamp.h"

#include <cpl_vsi.h>

#include <algorithm>

namespace vlt::coverage {

using contract::KnownRasterRange;

std::optional<KnownRasterRange> stamped(const CoverageRaster &raster, const ValueRange &range)
{
    KnownRasterRange known{range.minimum, range.maximum};
    for (const std::string &file : raster.files()) {
        VSIStatBufL state{};
        if (VSIStatL(file.c_str(), &state) != 0 || !VSI_ISREG(state.st_mode))
            return std::nullopt;
        known.sizeBytes += static_cast<std::int64_t>(state.st_size);
        known.timeS = std::max(known.timeS, static_cast<std::int64_t>(state.st_mtime));
    }
    return known.sizeBytes > 0 ? std::optional(known) : std::nullopt;
}

bool isUpToDate(const KnownRasterRange &known, const CoverageRaster &raster)
{
    return stamped(raster, {known.minimum, known.maximum}) == known;
}

} // namespace vlt::coverage
