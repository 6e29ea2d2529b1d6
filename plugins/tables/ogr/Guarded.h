#pragma once

#include "contract/TableTexts.h"
#include "plugins/tables/bytes/Refusal.h"

#include <cpl_error.h>

#include <new>

namespace vlt::driver {

/// Runs an action that reads the file. If the file turns out to be damaged, reports it as an error
/// of the library that begins with `name`, and returns false.
template<typename Action>
bool guarded(const char *name, Action action)
{
    try {
        action();
        return true;
    } catch (const RefusedFile &refused) {
        CPLError(CE_Failure, CPLE_FileIO, "%s: %s", name, refused.what());
    } catch (const std::bad_alloc &) {
        CPLError(CE_Failure, CPLE_OutOfMemory, "%s: %s", name,
                 contract::formatted("MESS_TAB_OUT_OF_MEMORY").c_str());
    }
    return false;
}

} // namespace vlt::driver
