#include "buildings/CountedBuildings.h"

#include "buildings/ValuedBuildings.h"

namespace vlt::buildings {

Result<CountedBuildings> countBuildings(const contract::BuildingDocument &document,
                                        const Progress &progress)
{
    // The progress never stops the work, so there is a value.
    const Result<ValuedBuildings> read = *ValuedBuildings::read(document, progress);
    if (!read)
        return read.error();
    return read.value().counted();
}

} // namespace vlt::buildings
